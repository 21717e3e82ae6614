// SPDX-License-Identifier: MIT
#include "sampleeditor.h"
#include "samplenotes.h"
#include "samplewindows.h"

#include "components/commandkeys.h"
#include "components/surroundings.h"
#include "editor/lentpasteboards.h"
#include "input/globalkeys.h"
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "panel/panelwindow.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryapplication.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorydefaults.h"
#include "platform/memory/memorykeyboard.h"
#include "platform/memory/memorypasteboard.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorysounds.h"
#include "platform/memory/memoryworkspace.h"
#include "quicknote/quicknotepanel.h"
#include "quicknote/toast.h"
#include "translations/translation.h"

#include <QCommandLineParser>
#include <QCursor>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// Installs the desktop's own icons for the applications that the sample notes name.
void installApplications(vesk::MemoryWorkspace &workspace)
{
    workspace.install(u"firefox-esr"_s, QIcon::fromTheme(u"firefox-esr"_s));
    const QIcon editor = QIcon::fromTheme(u"accessories-text-editor"_s);
    workspace.install(u"org.xfce.mousepad"_s, QIcon::fromTheme(u"org.xfce.mousepad"_s, editor));
    const QIcon terminal = QIcon::fromTheme(u"utilities-terminal"_s);
    workspace.install(u"xfce4-terminal"_s, QIcon::fromTheme(u"org.xfce.terminal"_s, terminal));
    workspace.install(u"org.gnome.Evince"_s, QIcon::fromTheme(u"org.gnome.Evince"_s));
}

void fillStore(vesk::NotesStore &store, vesk::MemoryClock &clock, int notes, const QString &texts)
{
    vesk::samplenotes::fill(store, clock, notes, texts);
    vesk::samplenotes::fillPrompts(store, clock);
}

vesk::PanelModel::Tab tabNamed(const QString &name)
{
    using Tab = vesk::PanelModel::Tab;
    return name == u"prompts" ? Tab::Prompts : name == u"checklists" ? Tab::Checklists : Tab::Notes;
}

/// The card with this number on the current tab, counted from 1; nullopt for 0 and beyond the last.
std::optional<vesk::RecordId> cardAt(vesk::PanelModel &model, int number)
{
    const bool isOnPrompts = model.tab() == vesk::PanelModel::Tab::Prompts;
    const vesk::SectionedListModel &list =
        isOnPrompts ? static_cast<vesk::SectionedListModel &>(*model.prompts()) : *model.notes();
    return number < 1 || number > list.visibleCount() ? std::nullopt
                                                      : std::optional(list.visibleAt(number - 1));
}

/// Moves the pointer within this window only, once everything has settled, and clicks if asked to.
void point(QQuickWindow &window, const QString &place, bool clicks)
{
    const QPointF at(place.section(u',', 0, 0).toDouble(), place.section(u',', 1, 1).toDouble());
    QTimer::singleShot(400, &window, [&window, at, clicks] {
        const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
            QMouseEvent event(type, at, window.mapToGlobal(at), button, held, Qt::NoModifier);
            QCoreApplication::sendEvent(&window, &event);
        };
        send(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        if (!clicks)
            return;
        send(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    });
}

void moveCaretToEnd(QQuickWindow &window)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_End, Qt::ControlModifier);
    QCoreApplication::sendEvent(&window, &press);
}

} // namespace

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication program(argc, argv);
    // Without desktop settings the font is arbitrary; this one is typical of a desktop.
    if (QFontDatabase::hasFamily(u"Inter"_s))
        QGuiApplication::setFont(QFont(u"Inter"_s));
    QCommandLineParser options;
    options.setApplicationDescription(u"Shows Vesk's panel with sample notes."_s);
    options.addHelpOption();
    const QCommandLineOption dark(u"dark"_s, u"Dark colours."_s);
    const QCommandLineOption strong(u"high-contrast"_s, u"Colours that stand out strongly."_s);
    const QCommandLineOption textScale(u"text-scale"_s, u"How large texts are."_s, u"FACTOR"_s, u"1"_s);
    const QCommandLineOption empty(u"empty"_s, u"No notes."_s);
    const QCommandLineOption untrusted(u"untrusted"_s, u"Without access to other applications."_s);
    const QCommandLineOption composited(u"composited"_s, u"Rely on a compositor that blends windows."_s);
    const QCommandLineOption still(u"still"_s, u"No animation."_s);
    const QCommandLineOption notes(u"notes"_s, u"How many notes."_s, u"N"_s, u"8"_s);
    const QCommandLineOption texts(
        u"texts"_s, u"Which notes: everyday, right-to-left, long-words, long or scripts."_s, u"KIND"_s);
    const QCommandLineOption language(u"language"_s, u"The language of Vesk's texts, such as de."_s,
                                      u"CODE"_s, u"en"_s);
    const QCommandLineOption search(u"search"_s, u"What to search for."_s, u"TEXT"_s);
    const QCommandLineOption tab(u"tab"_s, u"Which tab: notes, checklists or prompts."_s, u"TAB"_s);
    const QCommandLineOption select(u"select"_s, u"Which card is selected, from 1."_s, u"N"_s);
    const QCommandLineOption open(u"open"_s, u"Which note is open, from 1."_s, u"N"_s);
    const QCommandLineOption draft(u"draft"_s, u"What stands in the composer."_s, u"TEXT"_s);
    const QCommandLineOption pointer(u"pointer"_s, u"Where the pointer is, in the panel."_s, u"X,Y"_s);
    const QCommandLineOption click(u"click"_s, u"Where the pointer clicks, in the panel."_s, u"X,Y"_s);
    const QCommandLineOption notice(u"notice"_s, u"Shows a notice as well."_s, u"TEXT"_s);
    const QCommandLineOption guide(u"guide"_s, u"Shows the guide, as on the first run."_s);
    const QCommandLineOption keysFile(u"keys"_s, u"The user's choice of keys."_s, u"FILE"_s);
    const QCommandLineOption taken(u"taken"_s, u"Which program has two of the keys."_s, u"PROGRAM"_s);
    const QCommandLineOption editor(u"editor"_s, u"Shows a note in the editor instead."_s);
    const QCommandLineOption quickNote(u"quick-note"_s, u"Shows the quick-note box with a draft instead."_s,
                                       u"TEXT"_s);
    const QCommandLineOption quickChecklist(u"quick-checklist"_s, u"The same for a checklist."_s, u"TEXT"_s);
    const QCommandLineOption screenshot(u"screenshot"_s, u"Writes a picture of the panel and quits."_s,
                                        u"FILE"_s);
    options.addOptions({dark,           strong,     textScale, empty,  untrusted, composited, still,
                        notes,          texts,      search,    tab,    select,    open,       draft,
                        pointer,        click,      language,  notice, guide,     editor,     quickNote,
                        quickChecklist, screenshot, keysFile,  taken});
    options.process(program);
    const vesk::Translation translation({options.value(language)});
    QGuiApplication::setLayoutDirection(translation.language().textDirection());
    // A blinking caret would be in only some of the pictures.
    if (options.isSet(screenshot))
        QGuiApplication::styleHints()->setCursorFlashTime(0);

    const QTemporaryDir folder;
    const auto now = std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    vesk::MemoryClock clock(now);
    const auto opened = vesk::NotesStore::open(folder.filePath(u"Notes.store"_s), clock);
    if (!opened.store)
        qFatal("%s", qUtf8Printable(opened.error));
    if (!options.isSet(empty))
        fillStore(*opened.store, clock, options.value(notes).toInt(), options.value(texts));

    vesk::MemoryAppearance appearance;
    appearance.setColorScheme(options.isSet(dark) ? vesk::Appearance::ColorScheme::Dark
                                                  : vesk::Appearance::ColorScheme::Light);
    appearance.setIncreaseContrast(options.isSet(strong));
    appearance.setTextFont({.family = {}, .scale = options.value(textScale).toDouble()});
    appearance.setReduceMotion(options.isSet(still));
    vesk::MemoryScreens screens;
    const QRectF frame = program.primaryScreen()->geometry();
    screens.setScreens({{.frame = frame, .visibleFrame = frame}});
    screens.setMouseLocation(frame.center());
    vesk::SampleWindows windows(screens, options.isSet(composited));
    vesk::MemoryWorkspace workspace;
    installApplications(workspace);
    vesk::MemoryAccessibility accessibility(clock);
    accessibility.setTrusted(!options.isSet(untrusted));
    vesk::MemoryApplication application;
    vesk::MemoryDefaults defaults;
    defaults.setBool(!options.isSet(guide), u"hasSeenGuide"_s);
    vesk::MemoryPasteboard pasteboard;

    vesk::MemoryHotKeys hotKeys;
    if (options.isSet(taken)) {
        hotKeys.setHolders({options.value(taken)});
        hotKeys.setTaken(combinationOf(vesk::Command::Toggle));
        hotKeys.setTaken(combinationOf(vesk::Command::Write));
    }
    vesk::GlobalKeys keys(hotKeys, options.isSet(keysFile) ? options.value(keysFile)
                                                           : folder.filePath(u"Keys.conf"_s));
    keys.start();

    QQmlEngine engine;
    vesk::lendKeys(engine, keys);
    vesk::lendToEngine(engine, appearance, workspace, windows);
    vesk::MemoryPasteboard primary;
    vesk::lendToEditors(engine, pasteboard, &primary);
    std::unique_ptr<QQuickWindow> sheet;
    vesk::PanelModel model(*opened.store, clock, defaults, application, accessibility);
    vesk::PanelWindow panel(engine, model, application, screens, windows);
    vesk::Toast toast(engine, screens, windows, clock);
    vesk::MemorySounds sounds;
    vesk::QuickNotePanel box({.engine = engine,
                              .store = *opened.store,
                              .clock = clock,
                              .application = application,
                              .screens = screens,
                              .windows = windows,
                              .sounds = sounds,
                              .toast = toast});
    using Mode = vesk::QuickNoteBox::Mode;
    const bool isChecklist = options.isSet(quickChecklist);
    if (options.isSet(editor)) {
        sheet = vesk::sampleeditor::show(engine);
    } else if (isChecklist || options.isSet(quickNote)) {
        box.show(isChecklist ? Mode::Checklist : Mode::Note);
        box.model().setText(
            options.value(isChecklist ? quickChecklist : quickNote).replace(u"\\n"_s, u"\n"_s));
    } else {
        panel.showPanel();
    }
    QQuickWindow &shown = sheet ? *sheet : box.window() ? *box.window() : panel.window();
    model.setTab(tabNamed(options.value(tab)));
    model.setSearch(options.value(search));
    model.setDraft(options.value(draft));
    // By then the list has its size and the box its text.
    QTimer::singleShot(200, &program, [&] {
        if (const auto id = cardAt(model, options.value(select).toInt()))
            model.selection()->select(id);
        if (const auto id = cardAt(model, options.value(open).toInt()))
            model.cards()->activate(*id);
        if (box.window())
            moveCaretToEnd(*box.window());
    });
    if (options.isSet(pointer))
        point(panel.window(), options.value(pointer), false);
    if (options.isSet(click))
        point(panel.window(), options.value(click), true);
    if (options.isSet(notice))
        toast.show(options.value(notice), u"checkmark.circle.fill"_s);
    QObject::connect(&application, &vesk::Application::didHide, &program, &QGuiApplication::quit);
    if (options.isSet(screenshot)) {
        // The real pointer would show in the picture by hovering something.
        QCursor::setPos(QPoint());
        QTimer::singleShot(1200, &program, [&] {
            const bool isWritten = shown.grabWindow().save(options.value(screenshot));
            QGuiApplication::exit(isWritten ? 0 : 1);
        });
    }
    return QGuiApplication::exec();
}
