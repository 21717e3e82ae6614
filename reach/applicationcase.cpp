// SPDX-License-Identifier: MIT
#include "reach/applicationcase.h"

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

using Keys = ApplicationCase::Keys;

const Keys kAll{{XK_Control_L, XK_a}};
const Keys kCopy{{XK_Control_L, XK_c}};
const Keys kToStart{{XK_Control_L, XK_Home}};
const Keys kFirstWord{{XK_Control_L, XK_Home}, {XK_Control_L, XK_Shift_L, XK_Right}};

/// Runs in a terminal: prints the sample, then records what is typed.
const auto kOutput = u"cat sample.txt; exec cat > typed.txt"_s;

ApplicationCase editor(const QString &program, const QStringList &arguments, const QString &name,
                       const QString &bundleIdentifier)
{
    return {.name = name,
            .program = program,
            .arguments = arguments,
            .document = Document::Text,
            .applicationName = name,
            .bundleIdentifier = bundleIdentifier,
            .selectAll = kAll,
            .selectPart = kFirstWord,
            .deselect = kToStart,
            .copy = kCopy,
            .without = {Check::Address},
            .limits = {}};
}

ApplicationCase terminal(const QString &program, const QStringList &arguments, const QString &name,
                         const QString &bundleIdentifier)
{
    return {.name = name,
            .program = program,
            .arguments = arguments + QStringList{u"sh"_s, u"-c"_s, kOutput},
            .document = Document::Output,
            .applicationName = name,
            .bundleIdentifier = bundleIdentifier,
            .selectAll = {},
            .selectPart = {},
            .deselect = {},
            .copy = {},
            .without = {Check::Part, Check::Address},
            .limits = {}};
}

/// The cases of a browser; `whole` is one of them, complete except for the document.
QList<ApplicationCase> browser(const ApplicationCase &whole)
{
    struct Kind
    {
        Document document;
        QString name;
        QList<Check> without;
        bool isStartedFirst = false;
    };
    const QList<Check> notOfPasswords{Check::Whole,   Check::Part,      Check::Source,
                                      Check::Address, Check::Untouched, Check::Paste};
    const QList<Kind> kinds{
        {Document::Page, u"a page"_s, {Check::Part, Check::Untouched, Check::Paste}},
        {Document::FilePage, u"a page from a file"_s, {Check::Part, Check::Untouched, Check::Paste}},
        {Document::Field, u"a field on a page"_s, {}},
        {Document::Frame, u"a field in a frame"_s, {}},
        {Document::Password, u"a password field"_s, notOfPasswords},
        {Document::Password, u"a password field, started first"_s, notOfPasswords, true},
        {Document::RestlessPassword, u"a password field that loses the keyboard"_s, notOfPasswords},
    };
    QList<ApplicationCase> cases;
    for (const Kind &kind : kinds) {
        ApplicationCase each = whole;
        each.name = whole.name + u", "_s + kind.name;
        each.document = kind.document;
        each.without = kind.without;
        each.isStartedFirst = kind.isStartedFirst;
        if (kind.document == Document::Field || kind.document == Document::Frame) {
            each.selectPart = kFirstWord;
            each.deselect = kToStart;
        }
        cases.append(each);
    }
    return cases;
}

ApplicationCase emacs()
{
    ApplicationCase emacs = editor(u"emacs"_s, {u"-Q"_s, u"%1"_s}, u"Emacs (GUI)"_s, u"emacs"_s);
    emacs.name = u"Emacs"_s;
    emacs.selectAll = {{XK_Control_L, XK_x}, {XK_h}};
    emacs.selectPart = {{XK_Control_L, XK_Home}, {XK_Control_L, XK_space}, {XK_Alt_L, XK_f}};
    emacs.deselect = {{XK_Control_L, XK_g}, {XK_Control_L, XK_Home}};
    emacs.copy = {{XK_Alt_L, XK_w}};
    return emacs;
}

ApplicationCase evince()
{
    ApplicationCase evince = editor(u"evince"_s, {u"%1"_s}, u"Document Viewer"_s, u"org.gnome.Evince"_s);
    evince.name = u"Evince"_s;
    evince.document = Document::Pdf;
    evince.deselect = {};
    evince.without = {Check::Part, Check::Address, Check::Untouched, Check::Paste};
    return evince;
}

} // namespace

const QList<std::pair<Check, QString>> &allChecks()
{
    static const QList<std::pair<Check, QString>> checks{
        {Check::Whole, u"everything selected"_s}, {Check::Part, u"a word selected"_s},
        {Check::Nothing, u"nothing selected"_s},  {Check::Source, u"source"_s},
        {Check::Address, u"page address"_s},      {Check::Clipboard, u"clipboard kept"_s},
        {Check::Untouched, u"nothing typed"_s},   {Check::Paste, u"pasted back"_s},
    };
    return checks;
}

QList<ApplicationCase> lightApplications()
{
    ApplicationCase xterm =
        terminal(u"xterm"_s, {u"-T"_s, u"sample"_s, u"-e"_s}, u"XTerm"_s, u"debian-xterm"_s);
    xterm.limits = {{Check::Paste, u"it has no key that pastes the clipboard"_s}};
    return {
        editor(u"mousepad"_s, {u"--disable-server"_s, u"%1"_s}, u"Mousepad"_s, u"org.xfce.mousepad"_s),
        editor(u"gnome-text-editor"_s, {u"--standalone"_s, u"%1"_s}, u"Text Editor"_s,
               u"org.gnome.TextEditor"_s),
        editor(u"featherpad"_s, {u"--standalone"_s, u"%1"_s}, u"FeatherPad"_s, u"featherpad"_s),
        xterm,
    };
}

QList<ApplicationCase> heavyApplications()
{
    ApplicationCase writer = editor(
        u"soffice"_s, {u"--writer"_s, u"--norestore"_s, u"--nologo"_s, u"--nofirststartwizard"_s, u"%1"_s},
        u"LibreOffice Writer"_s, u"libreoffice-writer"_s);
    QList<ApplicationCase> cases{
        editor(u"kwrite"_s, {u"%1"_s}, u"KWrite"_s, u"org.kde.kwrite"_s),
        writer,
        emacs(),
        evince(),
        terminal(
            u"xfce4-terminal"_s,
            {u"--disable-server"_s, u"--hide-menubar"_s, u"--hide-toolbar"_s, u"-T"_s, u"sample"_s, u"-x"_s},
            u"Xfce Terminal"_s, u"xfce4-terminal"_s),
    };
    ApplicationCase chromium =
        editor(u"chromium"_s,
               {u"--no-sandbox"_s, u"--disable-gpu"_s, u"--no-first-run"_s, u"--no-default-browser-check"_s,
                u"--disable-background-networking"_s, u"--disable-component-update"_s, u"--disable-sync"_s,
                u"--password-store=basic"_s, u"--user-data-dir=profile"_s, u"%1"_s},
               u"Chromium Web Browser"_s, u"chromium"_s);
    chromium.name = u"Chromium"_s;
    ApplicationCase firefox =
        editor(u"firefox-esr"_s, {u"--no-remote"_s, u"--profile"_s, u"profile"_s, u"%1"_s}, u"Firefox ESR"_s,
               u"firefox-esr"_s);
    firefox.name = u"Firefox"_s;
    for (ApplicationCase *each : {&chromium, &firefox}) {
        each->deselect = {};
        cases += browser(*each);
    }
    for (ApplicationCase &each : cases) {
        const auto reason = u"once a global key was pressed, Firefox gives the keyboard to no frame again"_s;
        if (each.name.startsWith(firefox.name) && each.document == Document::Frame)
            each.limits = {{Check::Part, reason}, {Check::Paste, reason}};
    }
    return cases;
}

} // namespace vesk
