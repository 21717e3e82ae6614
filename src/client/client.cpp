// SPDX-License-Identifier: MIT
#include "client/client.h"

#include "client/keyslist.h"
#include "client/noteslist.h"
#include "input/keysfile.h"
#include "notes/noterules.h"
#include "notes/notesreader.h"
#include "notes/notesstore.h"
#include "notes/storeadvice.h"
#include "platform/freedesktop/coredumps.h"
#include "platform/freedesktop/systemclock.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDeadlineTimer>
#include <QFile>
#include <QStringDecoder>
#include <QTextStream>

#include <cerrno>
#include <chrono>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
/// How long to wait for other commands that add notes one after another.
constexpr std::chrono::milliseconds kTurnDeadline = 30s;

QString noBus()
{
    return Client::tr("There is no session bus. Run this command in your desktop session.");
}

QString tooLong()
{
    return Client::tr("The text is too long: a note can have up to %1 MB.")
        .arg(noterules::kMaximumBytes >> 20);
}

int outcome(const Remote::Answer &answer)
{
    if (!answer.isDone)
        sayError(answer.error);
    return answer.isDone ? kDone : kFailed;
}

int print(const QByteArray &text)
{
    QFile output;
    const bool isWritten =
        output.open(stdout, QIODevice::WriteOnly) && output.write(text) == text.size() && output.flush();
    if (!isWritten)
        sayError(Client::tr("Could not write to standard output: %1.").arg(output.errorString()));
    return isWritten ? kDone : kFailed;
}

/// Reports why the store cannot be used, and how to continue with a copy if only that helps.
void sayStoreError(const QString &error, StoreFault fault)
{
    sayError(error);
    const StoreAdvice advice = StoreAdvice::on(NotesStore::standardPath(), fault, SystemClock().now());
    for (const QString &each : {advice.message, advice.command}) {
        if (!each.isEmpty())
            QTextStream(stderr) << each << '\n';
    }
}

int list(bool isJson)
{
    const NotesReading reading = readNotes(NotesStore::standardPath());
    if (!reading.error.isEmpty()) {
        sayStoreError(reading.error.text, reading.error.fault);
        return kFailed;
    }
    return print(isJson ? notesAsJson(reading.notes) : notesAsLines(reading.notes));
}

} // namespace

void sayError(const QString &message)
{
    QTextStream(stderr) << "vesk: " << message << '\n';
}

Client::Client(QString app)
    : m_app(std::move(app))
{
}

int Client::run(const CommandLine &command)
{
    switch (command.kind) {
    case CommandLine::Kind::Start:
        return start(command);
    case CommandLine::Kind::Call:
        return call(command.method);
    case CommandLine::Kind::Quit:
        return quit(command.method);
    case CommandLine::Kind::Add:
        return add(command.text);
    case CommandLine::Kind::AddInput:
        return addInput();
    case CommandLine::Kind::List:
        return list(command.isJson);
    case CommandLine::Kind::Keys:
        return keys(command);
    case CommandLine::Kind::Access:
        return becomeApp(command.arguments);
    case CommandLine::Kind::Help:
        return print(commandLineHelp().toUtf8());
    case CommandLine::Kind::Version:
        return print("Vesk " + QCoreApplication::applicationVersion().toUtf8() + '\n');
    }
    return kFailed;
}

int Client::start(const CommandLine &command)
{
    if (!m_remote.isRunning())
        return becomeApp(command.arguments);
    return command.isInBackground ? kDone : outcome(m_remote.activate());
}

int Client::call(const QString &method)
{
    if (!m_remote.hasBus()) {
        sayError(noBus());
        return kFailed;
    }
    if (!m_remote.isRunning()) {
        const Remote::Answer started = m_remote.start(m_app);
        if (!started.isDone)
            return outcome(started);
    }
    return outcome(m_remote.call(method));
}

int Client::quit(const QString &method)
{
    // Not running is what the user wanted.
    if (!m_remote.isRunning())
        return kDone;
    const Remote::Answer answer = m_remote.call(method);
    return outcome(answer.isDone ? m_remote.waitForEnd() : answer);
}

int Client::keys(const CommandLine &command)
{
    KeysReport report;
    if (m_remote.isRunning()) {
        const Remote::Answer answer = m_remote.call(u"Keys"_s);
        if (!answer.isDone)
            return outcome(answer);
        report = KeysReport::fromMaps(qdbus_cast<QList<QVariantMap>>(answer.values.value(0)),
                                      answer.values.value(1).toStringList());
    } else {
        report = KeysReport::withoutVesk(KeysFile::read(KeysFile::standardPath()));
        sayError(tr("Vesk is not running, so none of these keys work now."));
    }
    for (const QString &problem : std::as_const(report.problems))
        sayError(problem);
    return print(command.isJson ? keysAsJson(report) : keysAsLines(report));
}

int Client::addInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        sayError(tr("Could not read standard input."));
        return kFailed;
    }
    // A read from a pipe returns what is available, so read until there is nothing left.
    constexpr qint64 kPart = qint64{1} << 16;
    QByteArray bytes;
    for (QByteArray part = input.read(kPart); !part.isEmpty(); part = input.read(kPart)) {
        bytes += part;
        if (bytes.size() > noterules::kMaximumBytes) {
            sayError(tooLong());
            return kFailed;
        }
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    if (decoder.hasError() || text.contains(QChar::Null)) {
        sayError(tr("Standard input is not plain text in UTF-8."));
        return kFailed;
    }
    return add(text);
}

int Client::add(const QString &text)
{
    const QString trimmed = markup::trimmed(text);
    if (trimmed.isEmpty()) {
        sayError(tr("There is no text to add."));
        return kFailed;
    }
    if (noterules::isTooLong(trimmed)) {
        sayError(tooLong());
        return kFailed;
    }
    if (!m_remote.hasBus()) {
        sayError(noBus());
        return kFailed;
    }
    // A running Vesk has all notes in memory, so only Vesk may write then. Whoever owns the bus name is this
    // session's only writer.
    for (const QDeadlineTimer deadline(kTurnDeadline); !deadline.hasExpired(); Remote::pause()) {
        if (m_remote.takeName())
            return addToStore(trimmed);
        if (m_remote.owner() == Remote::Owner::Vesk)
            return outcome(m_remote.call(u"AddNote"_s, {trimmed}));
    }
    sayError(tr("The note was not saved, because other commands kept writing to the notes."));
    return kFailed;
}

int Client::addToStore(const QString &text)
{
    SystemClock clock;
    const QString path = NotesStore::standardPath();
    const NotesStore::OpenResult opened =
        NotesStore::open(path, clock, NotesStore::Use::Command, kTurnDeadline);
    if (!opened.store) {
        sayStoreError(tr("Could not open the notes store: %1").arg(opened.error), opened.fault);
        return kFailed;
    }
    const noterules::Kept kept = noterules::add(*opened.store, clock, text);
    if (!kept.problem.isEmpty()) {
        sayError(tr("The note could not be written to %1.").arg(path));
        sayError(kept.problem);
        return kFailed;
    }
    return kDone;
}

int Client::becomeApp(const QStringList &arguments)
{
    // The application has the same name as this program, in the process list and for X11.
    QList<QByteArray> words{"vesk"};
    for (const QString &argument : arguments)
        words.append(QFile::encodeName(argument));
    std::vector<char *> pointers;
    for (QByteArray &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const QByteArray app = QFile::encodeName(m_app);
    // The application disables core dumps itself, and starts its own children with the original limit.
    restoreCoreDumps();
    execv(app.constData(), pointers.data());
    sayError(tr("%1 could not be started: %2.").arg(m_app, qt_error_string(errno)));
    return kFailed;
}

} // namespace vesk
