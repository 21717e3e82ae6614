// SPDX-License-Identifier: MIT
#include "reach/applicationtrial.h"

#include "virtualdesktop/veskfacts.h"

#include <QDir>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

/// Enough for the largest application to start for the first time.
constexpr auto kStartBound = 60s;
/// Keys and clicks are queued at once; this is the time to process them.
constexpr auto kSettling = 400ms;
constexpr auto kAnswerBound = 1s;
/// Longer than any way of reading the text may take.
constexpr auto kOutcomeBound = 10s;
/// Long enough for the keyboard to repeat the letter many times.
constexpr auto kLongHold = 1500ms;

const ClipboardHolder::Forms &copiedBefore()
{
    static const ClipboardHolder::Forms forms{
        {"UTF8_STRING", "copied before"},
        {"text/html", "<b>copied</b> before"},
        {"image/png", QByteArray("\x89PNG\r\n\0\x1a", 8).repeated(9'000)},
    };
    return forms;
}

const ApplicationCase::Keys kSelectAll{{XK_Control_L, XK_a}};

/// Applications differ in how they separate lines.
QString plain(const QString &text)
{
    return text.simplified();
}

QString quoted(const QString &text)
{
    constexpr qsizetype kLong = 80;
    return u"“%1”"_s.arg(plain(text).left(kLong));
}

} // namespace

ApplicationTrial::ApplicationTrial(ApplicationCase application, QString pictures)
    : m_application(std::move(application))
    , m_pictures(std::move(pictures))
{
}

ApplicationTrial::~ApplicationTrial()
{
    // The programs must end before their desktop.
    m_vesk.reset();
    m_process.reset();
    m_clipboard.reset();
}

std::optional<ApplicationTrial::Findings> ApplicationTrial::run(QString &problem)
{
    problem = setUp();
    if (!problem.isEmpty())
        return std::nullopt;
    checkWhole();
    checkPart();
    if (isPassword(m_application.document))
        checkSecret();
    else
        checkNothing();
    checkClipboard();
    checkUntouched();
    checkPaste();
    for (const Check check : m_application.without)
        m_findings.remove(check);
    return m_findings;
}

QString ApplicationTrial::setUp()
{
    QString problem;
    m_desktop = VirtualDesktop::start(problem);
    if (!m_desktop)
        return problem;
    if (!m_desktop->prepareUser())
        return u"Vesk could not be allowed to read."_s;
    m_document = SampleDocument::make(*m_desktop, m_application.document);
    if (!m_document)
        return u"The document could not be made."_s;
    const bool isOff = !m_application.isStartedFirst || m_desktop->setAccessibility(false);
    if (!isOff)
        return u"Accessibility cannot be switched off."_s;
    QStringList arguments = m_application.arguments;
    arguments.replaceInStrings(u"%1"_s, m_document->place());
    m_process = m_desktop->run(m_application.program, arguments);
    if (!m_process)
        return u"%1 could not be started."_s.arg(m_application.program);
    const bool isThere = m_desktop->display().waitUntil(kStartBound, [this] {
        const auto window = m_desktop->windows().findViewableIf(
            [](const Window &each) { return each.title.contains(u"sample"_s); });
        m_window = window.value_or(Window());
        return window.has_value();
    });
    if (!isThere || !bringForward())
        return u"The window did not come up. On the screen: "_s + m_desktop->windows().describe();
    if (!isReady())
        return u"It does not take keys. On the screen: "_s + m_desktop->windows().describe();
    m_clipboard = ClipboardHolder::hold(m_desktop->displayName(), copiedBefore());
    m_vesk = m_desktop->startVesk();
    if (!m_clipboard || !m_vesk)
        return u"Vesk did not start."_s;
    return bringForward() ? QString() : u"The window does not come forward."_s;
}

/// A window that has just been mapped may miss the first keys, and a page may still be loading.
bool ApplicationTrial::isReady()
{
    constexpr int kTries = 40;
    for (int round = 0; round < kTries; ++round) {
        const bool isField =
            m_application.document == Document::Field || m_application.document == Document::Frame;
        if (isField)
            m_desktop->pointer().click(m_window.geometry.center());
        selectAll();
        perform(m_application.copy);
        if (isPassword(m_application.document))
            return true; // There is nothing to check.
        const char *selection = m_application.copy.isEmpty() ? "PRIMARY" : "CLIPBOARD";
        if (plain(m_desktop->display().readSelection(selection, kAnswerBound).value_or(QString()))
            == wholeText())
            return true;
    }
    return false;
}

bool ApplicationTrial::bringForward()
{
    // When focused a second time, some browsers forget which frame of the page had the focus.
    if (!m_desktop->windows().isActive(m_window))
        m_desktop->windows().activate(m_window);
    return m_desktop->windows().waitActive(m_window, kOutcomeBound)
           && m_desktop->windows().waitFocused(m_window, kOutcomeBound);
}

void ApplicationTrial::perform(const ApplicationCase::Keys &keys)
{
    for (const QList<xcb_keysym_t> &combination : keys)
        m_desktop->keyboard().tap(combination, kFinger);
    std::this_thread::sleep_for(kSettling);
}

void ApplicationTrial::selectAll()
{
    // Place the caret somewhere with nothing selected, so that each selection is a new one.
    if (!m_application.deselect.isEmpty() || m_application.selectAll.isEmpty())
        deselect();
    if (m_application.selectAll.isEmpty()) {
        constexpr QPoint kFirstLine{40, 10};
        constexpr int kTriple = 3;
        m_desktop->pointer().click(m_window.geometry.topLeft() + kFirstLine, kTriple);
        std::this_thread::sleep_for(kSettling);
    } else {
        perform(m_application.selectAll);
    }
}

void ApplicationTrial::deselect()
{
    if (m_application.deselect.isEmpty())
        m_desktop->pointer().click(m_window.geometry.center());
    perform(m_application.deselect);
}

bool ApplicationTrial::command(const QStringList &words)
{
    const std::unique_ptr<ChildProcess> process = m_desktop->run(VirtualDesktop::veskProgram(), words);
    return process && process->waitForExit(kOutcomeBound) && process->exitCode() == 0;
}

QStringList ApplicationTrial::everythingKept() const
{
    return m_desktop->notes().texts() + m_desktop->notes().promptTexts();
}

std::optional<Window> ApplicationTrial::veskWindow() const
{
    return m_desktop->windows().findViewableIf([this](const Window &window) {
        return window.pid == m_vesk->pid() && window.title != kSaved && window.title != kAlready;
    });
}

ApplicationTrial::Outcome ApplicationTrial::capture(std::chrono::milliseconds hold)
{
    if (m_sinceCapture.isValid() && !m_sinceCapture.hasExpired(kCaptureGate.count()))
        std::this_thread::sleep_for(kCaptureGate - std::chrono::milliseconds(m_sinceCapture.elapsed()));
    const qsizetype before = m_desktop->notes().texts().size();
    m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_n}, hold);
    m_sinceCapture.start();
    Outcome outcome = Outcome::None;
    static_cast<void>(m_desktop->display().waitUntil(kOutcomeBound, [&] {
        if (m_desktop->notes().texts().size() > before)
            outcome = Outcome::Kept;
        else if (veskWindow())
            outcome = Outcome::Fallback;
        return outcome != Outcome::None;
    }));
    return outcome;
}

void ApplicationTrial::dismissFallback()
{
    const std::optional<Window> window = veskWindow();
    if (!window)
        return;
    static_cast<void>(m_desktop->windows().waitFocused(*window, kAnswerBound));
    m_desktop->keyboard().tap({XK_Escape}, kFinger);
    static_cast<void>(m_desktop->display().waitUntil(kAnswerBound, [this] { return !veskWindow(); }));
}

void ApplicationTrial::checkWhole()
{
    if (m_application.without.contains(Check::Whole))
        return;
    selectAll();
    // Held so long that a letter that reached the application would appear many times.
    const Outcome outcome = capture(kLongHold);
    const QStringList texts = m_desktop->notes().texts();
    const QString kept = plain(texts.value(0));
    judge(Check::Whole, texts.size() == 1 && kept == wholeText(),
          texts.isEmpty() ? u"nothing is kept"_s : u"%1 is kept"_s.arg(quoted(kept)));
    if (outcome == Outcome::Kept)
        checkSource();
    else
        judge(Check::Source, false, u"no note to look at"_s);
    dismissFallback();
}

void ApplicationTrial::checkSource()
{
    const NotesFile::Row note = m_desktop->notes().notes().value_or(QList<NotesFile::Row>()).value(0);
    const auto window =
        m_desktop->windows().findViewableIf([this](const Window &each) { return each.id == m_window.id; });
    const QString title = window.value_or(m_window).title.trimmed();
    const QStringList found{note.value(u"sourceApp"_s), note.value(u"sourceBundleID"_s),
                            note.value(u"sourceTitle"_s)};
    const QStringList expected{m_application.applicationName, m_application.bundleIdentifier, title};
    judge(Check::Source, found == expected, u"it is said to be "_s + quoted(found.join(u", "_s)));
    const QString address = note.value(u"sourceURL"_s);
    judge(Check::Address, address == m_document->address(),
          address.isEmpty() ? u"none is found"_s : quoted(address));
}

void ApplicationTrial::checkPart()
{
    if (m_application.without.contains(Check::Part) || !bringForward())
        return;
    perform(m_application.selectPart);
    const qsizetype before = m_desktop->notes().texts().size();
    static_cast<void>(capture(kFinger));
    const QStringList texts = m_desktop->notes().texts();
    const QString word = SampleDocument::lines().constFirst().section(u' ', 0, 0);
    const QString kept = texts.size() > before ? texts.constLast() : QString();
    judge(Check::Part, kept == word,
          kept.isEmpty() ? u"nothing is kept"_s : u"%1 is kept"_s.arg(quoted(kept)));
    dismissFallback();
}

void ApplicationTrial::checkNothing()
{
    if (!bringForward())
        return judge(Check::Nothing, false, u"the window does not come forward"_s);
    // Everything that was selected; many applications continue to offer it.
    selectAll();
    deselect();
    const qsizetype before = m_desktop->notes().texts().size();
    const Outcome outcome = capture(kFinger);
    const QStringList texts = m_desktop->notes().texts();
    judge(Check::Nothing, outcome == Outcome::Fallback && texts.size() == before,
          texts.size() > before ? u"%1 is kept"_s.arg(quoted(texts.constLast())) : u"nothing happens"_s);
    dismissFallback();
}

void ApplicationTrial::checkSecret()
{
    if (!command({u"add"_s, u"A note to add to"_s}))
        return judge(Check::Nothing, false, u"no note can be added"_s);
    using Keys = ApplicationCase::Keys;
    const QList<std::pair<QString, Keys>> selections{
        {u"double click"_s, {}},
        {u"Shift-End"_s, {{XK_Home}, {XK_Shift_L, XK_End}}},
        {u"Control-A"_s, kSelectAll},
    };
    const QList<std::pair<QString, Keys>> captures{
        {u"the hot key"_s, {{XK_Super_L, XK_Alt_L, XK_n}}},
        {u"adding"_s, {{XK_Super_L, XK_Alt_L, XK_Shift_L, XK_n}}},
        {u"a double Shift"_s, {{XK_Shift_L}, {XK_Shift_L}}},
    };
    const QStringList before = everythingKept();
    // A page that moves the focus uses each of its ways with each selection.
    const int rounds = m_application.document == Document::RestlessPassword ? 3 : 1;
    for (int round = 0; round < rounds; ++round) {
        for (const auto &[selection, selecting] : selections) {
            for (const auto &[capture, capturing] : captures) {
                if (!bringForward())
                    return judge(Check::Nothing, false, u"the window does not come forward"_s);
                m_desktop->pointer().click(m_window.geometry.center() - QPoint(200, 0),
                                           selecting.isEmpty() ? 2 : 1);
                perform(selecting);
                for (const QList<xcb_keysym_t> &combination : capturing)
                    m_desktop->keyboard().tap(combination, kFinger);
                std::this_thread::sleep_for(kCaptureGate);
                dismissFallback();
                if (everythingKept() != before)
                    return judge(Check::Nothing, false,
                                 u"%1 is kept after %2 and %3"_s.arg(quoted(everythingKept().join(u' ')),
                                                                     selection, capture));
            }
        }
    }
    judge(Check::Nothing, true, {});
}

void ApplicationTrial::checkClipboard()
{
    QString problem;
    for (const auto &[form, bytes] : copiedBefore().asKeyValueRange()) {
        const auto now = m_desktop->display().readForm("CLIPBOARD", form.constData(), kAnswerBound);
        if (now != bytes)
            problem = now ? u"%1 is another"_s.arg(QString::fromLatin1(form))
                          : u"%1 is gone"_s.arg(QString::fromLatin1(form));
    }
    judge(Check::Clipboard, problem.isEmpty(), problem);
}

void ApplicationTrial::checkUntouched()
{
    if (m_application.without.contains(Check::Untouched))
        return;
    if (!bringForward())
        return judge(Check::Untouched, false, u"the window has gone"_s);
    const QString expected = m_application.document == Document::Output ? QString() : wholeText();
    const QString found = contents();
    judge(Check::Untouched, found == expected, u"it has %1"_s.arg(quoted(found)));
}

void ApplicationTrial::checkPaste()
{
    if (m_application.without.contains(Check::Paste))
        return;
    const QString text = plain(m_desktop->notes().texts().value(m_desktop->notes().texts().size() - 1));
    if (text.isEmpty() || !bringForward())
        return judge(Check::Paste, false, u"no note to paste"_s);
    if (!m_application.deselect.isEmpty())
        deselect();
    const qsizetype before = contents().count(text);
    if (!m_application.deselect.isEmpty())
        deselect();
    m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, kFinger);
    const std::optional<Window> panel = m_desktop->windows().waitViewable(kPanel, kOutcomeBound);
    if (!panel || !m_desktop->windows().waitFocused(*panel, kOutcomeBound))
        return judge(Check::Paste, false, u"the panel does not come up"_s);
    m_desktop->keyboard().tap({XK_Down}, kFinger);
    m_desktop->keyboard().tap({XK_Control_L, XK_Return}, kFinger);
    if (!m_desktop->windows().waitActive(m_window, kOutcomeBound))
        return judge(Check::Paste, false, u"the window does not get the keyboard back"_s);
    // Do not look at the document before the paste can have arrived, because that would disturb it. Pasting
    // twice is as wrong as not pasting.
    std::this_thread::sleep_for(kCaptureGate);
    const qsizetype after = contents().count(text);
    judge(Check::Paste, after == before + 1,
          after == before ? u"nothing is pasted"_s : u"it is pasted %1 times"_s.arg(after - before));
}

QString ApplicationTrial::contents()
{
    if (m_application.document == Document::Output) {
        // The terminal passes on whole lines, not letters.
        m_desktop->keyboard().tap({XK_Return}, kFinger);
        std::this_thread::sleep_for(kSettling);
        return plain(m_desktop->readFile(u"typed.txt"_s));
    }
    perform(m_application.selectAll);
    perform(m_application.copy);
    return plain(m_desktop->display().readSelection("CLIPBOARD", kAnswerBound).value_or(QString()));
}

QString ApplicationTrial::wholeText() const
{
    const QStringList &lines = SampleDocument::lines();
    return m_application.document == Document::Output ? lines.constFirst() : lines.join(u' ');
}

void ApplicationTrial::judge(Check check, bool holds, const QString &otherwise)
{
    if (m_application.without.contains(check))
        return;
    m_findings.insert(check, holds ? QString() : otherwise);
    if (holds || m_pictures.isEmpty())
        return;
    const auto isIt = [check](const std::pair<Check, QString> &each) { return each.first == check; };
    const QString name = std::ranges::find_if(allChecks(), isIt)->second;
    QDir().mkpath(m_pictures);
    const QString file = u"%1/%2, %3.png"_s.arg(m_pictures, m_application.name, name);
    static_cast<void>(m_desktop->display().screenshot().save(file));
}

} // namespace vesk
