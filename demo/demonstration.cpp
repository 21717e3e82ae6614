// SPDX-License-Identifier: MIT
//
// Shows Vesk at work without a desktop: text selected in a real editor is captured with a real key press and
// shown in the panel. Every step is checked; the run ends at the first that fails.
#include "virtualdesktop/accessibletree.h"
#include "virtualdesktop/guard.h"
#include "virtualdesktop/texteditor.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kBound = 10s;
/// How long a key is held.
constexpr auto kFinger = 20ms;
/// A picture that has not changed for this long is the last frame of its animation.
constexpr auto kStill = 250ms;
const QStringList kLines = {u"Groceries for Sunday"_s, u"Water the lemon tree on the balcony"_s,
                            u"Ask about the train to Ghent"_s};
constexpr int kSelectedLine = 1;

void say(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

bool fail(const QString &what)
{
    std::fprintf(stderr, "The demonstration failed: %s\n", qPrintable(what));
    return false;
}

/// The parts of the scene, created one after the other.
struct Scene
{
    std::unique_ptr<VirtualDesktop> desktop;
    std::unique_ptr<ChildProcess> vesk;
    std::unique_ptr<TextEditor> editor;

    // The programs must end before their desktop.
    ~Scene()
    {
        editor.reset();
        vesk.reset();
    }
};

bool setUp(Scene &scene)
{
    say(u"Starting a desktop of its own: X server, window manager, session and accessibility bus …"_s);
    QString problem;
    scene.desktop = VirtualDesktop::start(problem);
    if (!scene.desktop)
        return fail(problem);
    say(u"  the X server is %1"_s.arg(scene.desktop->displayName()));

    say(u"Allowing Vesk to read other applications (vesk access allow) …"_s);
    if (!scene.desktop->prepareUser())
        return fail(u"“vesk access allow” did not succeed."_s);

    say(u"Starting Vesk …"_s);
    QElapsedTimer timer;
    timer.start();
    scene.vesk = scene.desktop->startVesk();
    if (!scene.vesk)
        return fail(u"Vesk ended, or never took its hot keys."_s);
    say(u"  its hot keys were there after %1 ms"_s.arg(timer.elapsed()));

    say(u"Opening a text editor (Mousepad) with %1 lines …"_s.arg(kLines.size()));
    scene.editor = TextEditor::open(*scene.desktop, kLines);
    if (!scene.editor)
        return fail(u"The editor's window did not come up."_s);
    say(u"  its window is “%1”"_s.arg(scene.editor->window().title));
    return true;
}

bool capture(Scene &scene)
{
    say(u"Selecting “%1” with the keyboard …"_s.arg(kLines.at(kSelectedLine)));
    if (!scene.editor->selectLine(kSelectedLine))
        return fail(u"The editor did not select the line."_s);

    say(u"Pressing Super-Alt-N …"_s);
    QElapsedTimer timer;
    timer.start();
    scene.desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_n}, kFinger);
    if (!scene.desktop->windows().waitViewable(u"Saved to Vesk"_s, kBound))
        return fail(u"No notice “Saved to Vesk”. On the screen: "_s + scene.desktop->windows().describe());
    say(u"  the notice “Saved to Vesk” was on the screen after %1 ms"_s.arg(timer.elapsed()));

    say(u"The note as it stands in the database (Notes.store, table Note):"_s);
    const QList<NotesFile::Row> notes = scene.desktop->notes().notes().value_or(QList<NotesFile::Row>());
    if (notes.size() != 1)
        return fail(u"The database holds %1 notes instead of one."_s.arg(notes.size()));
    for (const auto &[column, value] : notes.constFirst().asKeyValueRange())
        say(u"  %1 = %2"_s.arg(column, value));
    if (notes.constFirst().value(u"text"_s) != kLines.at(kSelectedLine))
        return fail(u"The note's text is not what was selected."_s);
    return true;
}

/// Whether there is anything between the panel's search field and its composer.
bool isListPainted(const QImage &screen, const Window &panel)
{
    const QRect list = panel.geometry.adjusted(30, 60, -30, -70);
    const QRgb background = screen.pixel(list.bottomRight());
    for (int y = list.top(); y < list.bottom(); ++y) {
        for (int x = list.left(); x < list.right(); ++x) {
            if (screen.pixel(x, y) != background)
                return true;
        }
    }
    return false;
}

/// The screen once the panel's list is painted and nothing moves any more; null if that did not happen.
QImage takePicture(DisplayConnection &display, const Window &panel)
{
    QImage now;
    QElapsedTimer unchanged;
    unchanged.start();
    const bool isStill = display.waitUntil(kBound, [&] {
        const QImage before = std::exchange(now, display.screenshot());
        if (before != now)
            unchanged.start();
        return unchanged.hasExpired(std::chrono::milliseconds(kStill).count()) && isListPainted(now, panel);
    });
    return isStill ? now : QImage();
}

bool showPanel(Scene &scene, const QString &picture)
{
    say(u"Pressing Super-Alt-T …"_s);
    QElapsedTimer timer;
    timer.start();
    scene.desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, kFinger);
    const std::optional<Window> panel = scene.desktop->windows().waitViewable(u"Vesk"_s, kBound);
    if (!panel)
        return fail(u"The panel did not come up. On the screen: "_s + scene.desktop->windows().describe());
    say(u"  the panel was on the screen after %1 ms"_s.arg(timer.elapsed()));

    const AccessibleTree tree(scene.desktop->busAddress());
    const bool isCardThere = scene.desktop->display().waitUntil(kBound, [&] {
        const QStringList names = tree.names(scene.vesk->pid());
        return std::ranges::any_of(
            names, [](const QString &name) { return name.contains(kLines.at(kSelectedLine)); });
    });
    if (!isCardThere)
        return fail(u"The panel tells a screen reader of no card with the note's title."_s);
    say(u"  it tells a screen reader of the card “%1”"_s.arg(kLines.at(kSelectedLine)));

    const QImage screen = takePicture(scene.desktop->display(), *panel);
    if (screen.isNull())
        return fail(u"The panel's list stayed empty on the screen."_s);
    QDir().mkpath(QFileInfo(picture).path());
    if (!screen.save(picture))
        return fail(u"The picture %1 could not be written."_s.arg(picture));
    say(u"A picture of the screen: %1"_s.arg(picture));
    return true;
}

int run(const QString &picture)
{
    Scene scene;
    const bool isDone = setUp(scene) && capture(scene) && showPanel(scene, picture);
    if (!isDone && scene.vesk)
        std::fprintf(stderr, "%s", qPrintable(scene.vesk->errorOutput()));
    if (isDone)
        say(u"Everything happened as it should."_s);
    return isDone ? 0 : 1;
}

} // namespace

} // namespace vesk

int main(int argc, char **argv)
{
    return vesk::runGuarded([&] {
        const QCoreApplication application(argc, argv);
        if (argc != 2 || vesk::VirtualDesktop::veskProgram().isEmpty()) {
            std::fprintf(stderr, "Usage: VESK_PROGRAM=<path of vesk> vesk-demonstration <picture.png>\n");
            return 2;
        }
        return vesk::run(application.arguments().at(1));
    });
}
