// SPDX-License-Identifier: MIT
//
// Measures how long a key in the note editor takes until it is painted, under users' conditions: in a
// separate window, without a GPU. Prints the size of the note and the milliseconds for each key.
#include "components/surroundings.h"
#include "editor/noteeditorcontroller.h"
#include "editor/notetextview.h"
#include "platform/memory/memoryappearance.h"
#include "platform/memory/memoryscreens.h"
#include "platform/memory/memorywindows.h"
#include "platform/memory/memoryworkspace.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <cstdio>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

constexpr int kKeys = 100;
constexpr int kWarmUp = 5;
constexpr qint64 kBound = 5000;

const auto kView = uR"(
import QtQuick
import Vesk.Editor

NoteEditor {
    fontSize: 14
    firstLineIsTitle: true
    titleBoost: 4
    titleWeight: Font.DemiBold
}
)"_s;

/// A note of about this many bytes: prose, headings, and lists with boxes.
QString note(qsizetype size)
{
    const QString lines =
        u"# A heading of the note\n"
        "Some words of **prose** that are about as long as people write them, and a few more.\n"
        "☐ Something to do\n"
        "☑ Something that is done\n"
        "• One point of several\n"_s;
    return (u"The title\n"_s + lines.repeated(size / lines.toUtf8().size() + 1)).left(size);
}

/// An editor in a window; measures from a key press to its painted frame.
class EditorBench final
{
public:
    explicit EditorBench(QQmlEngine &engine);

    void load(const QString &text);
    /// In milliseconds; nullopt if nothing was painted.
    [[nodiscard]] std::optional<double> time(Qt::Key key, const QString &text);
    void moveCaret(qsizetype position);
    [[nodiscard]] NoteEditorController &controller() { return m_controller; }

private:
    [[nodiscard]] bool wait() const;

    NoteEditorController m_controller;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_editor;
    int m_frames = 0;
};

EditorBench::EditorBench(QQmlEngine &engine)
{
    QQmlComponent component(&engine);
    component.setData(kView.toUtf8(), QUrl());
    m_editor.reset(qobject_cast<QQuickItem *>(component.create()));
    if (!m_editor)
        qFatal("%s", qUtf8Printable(component.errorString()));
    m_editor->setProperty("controller", QVariant::fromValue(&m_controller));
    m_editor->setParentItem(m_window.contentItem());
    m_window.resize(400, 560);
    m_editor->setSize(m_window.size());
    QObject::connect(&m_window, &QQuickWindow::frameSwapped, [this] { ++m_frames; });
    m_window.show();
    m_window.requestActivate();
    m_controller.forceFocus();
}

bool EditorBench::wait() const
{
    QElapsedTimer bound;
    bound.start();
    while (m_frames == 0 && !bound.hasExpired(kBound))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return m_frames > 0;
}

void EditorBench::load(const QString &text)
{
    m_editor->setProperty("text", text);
    m_frames = 0;
    if (!wait())
        std::fprintf(stderr, "The editor is not painted.\n");
}

void EditorBench::moveCaret(qsizetype position)
{
    m_frames = 0;
    QMetaObject::invokeMethod(m_controller.textView()->target(), "select",
                              Q_ARG(int, static_cast<int>(position)), Q_ARG(int, static_cast<int>(position)));
    static_cast<void>(wait());
}

std::optional<double> EditorBench::time(Qt::Key key, const QString &text)
{
    // Finish painting the previous key first.
    QCoreApplication::processEvents(QEventLoop::AllEvents, 30);
    m_frames = 0;
    QElapsedTimer timer;
    timer.start();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&m_window, &press);
    if (!wait())
        return std::nullopt;
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void benchNote(QQmlEngine &engine, const QString &name, qsizetype size)
{
    EditorBench bench(engine);
    bench.load(note(size));
    for (const double place : {0.0, 0.5, 1.0}) {
        const QString &text = bench.controller().textView()->text();
        const qsizetype middle =
            text.indexOf(u"words", static_cast<qsizetype>(static_cast<double>(size) * place * 0.9));
        bench.moveCaret(place >= 1 ? text.size() : std::max(middle, qsizetype{0}));
        for (int i = 0; i < kKeys + kWarmUp; ++i) {
            const bool isReturn = i % 10 == 9;
            const std::optional<double> time =
                isReturn ? bench.time(Qt::Key_Return, u"\r"_s) : bench.time(Qt::Key_A, u"a"_s);
            if (time && i >= kWarmUp)
                std::printf("%s\t%.3f\n", qPrintable(name), *time);
        }
    }
}

} // namespace

} // namespace vesk

int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    vesk::MemoryAppearance appearance;
    vesk::MemoryScreens screens;
    vesk::MemoryWindows windows(screens);
    vesk::MemoryWorkspace workspace;
    QQmlEngine engine;
    vesk::lendToEngine(engine, appearance, workspace, windows);
    vesk::benchNote(engine, u"10 KB"_s, 10'000);
    vesk::benchNote(engine, u"1 MB"_s, 1'000'000);
    return 0;
}
