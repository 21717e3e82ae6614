// SPDX-License-Identifier: MIT
#pragma once

#include "programworld.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

namespace vesk {

/// Holds the store of a test of the commands; outlives the program.
struct StoreFolder
{
    QTemporaryDir folder;
};

/// The whole program except for its platform and the box.
struct ServicesWorld : StoreFolder, ProgramWorld
{
    /// The quick-note box, without a window.
    class MemoryBox final : public QuickNoteBox
    {
    public:
        using QuickNoteBox::show;
        void expect() override { m_isExpected = true; }
        void expectNothing() override { m_isExpected = false; }
        void show(Mode mode, const QString &remark) override
        {
            m_isExpected = false;
            m_mode = mode;
            m_remark = remark;
        }
        void close() override { m_mode.reset(); }
        [[nodiscard]] bool isShowing() const override { return m_mode.has_value(); }
        [[nodiscard]] std::optional<Mode> mode() const { return m_mode; }
        [[nodiscard]] const QString &remark() const { return m_remark; }
        /// Whether what is typed is kept for the box.
        [[nodiscard]] bool isExpected() const { return m_isExpected; }

    private:
        std::optional<Mode> m_mode;
        QString m_remark;
        bool m_isExpected = false;
    };

    /// `keysFile` is the user's choice of keys.
    explicit ServicesWorld(const QByteArray &keysFile = {})
        : ProgramWorld(folder.filePath(QStringLiteral("Notes.store")), MemoryClock().now(), keysFile)
        , services(servicesNeeds(box))
    {
        services.start();
    }

    /// Presses the command's keys.
    void press(Command command)
    {
        if (command == Command::SavePrompt)
            tapShiftTwice();
        else
            QVERIFY(hotKeys.press(combinationOf(command)));
    }

    /// The message on the screen; empty if there is none.
    [[nodiscard]] static QString notice()
    {
        const QWindowList windows = QGuiApplication::topLevelWindows();
        for (const QWindow *window : windows) {
            if (window->isVisible() && (window->flags() & Qt::WindowDoesNotAcceptFocus))
                return window->title();
        }
        return {};
    }
    /// Newest first.
    [[nodiscard]] QStringList texts() const { return textsOf(store.notes()); }
    [[nodiscard]] QStringList prompts() const { return textsOf(store.prompts()); }
    template <typename Record>
    [[nodiscard]] static QStringList textsOf(const LiveQuery<Record> &query)
    {
        QStringList texts;
        for (qsizetype i = 0; i < query.count(); ++i)
            texts.append(query.at(i).text());
        return texts;
    }

    MemoryBox box;
    VeskServices services;
};

} // namespace vesk
