// SPDX-License-Identifier: MIT
#pragma once

#include "../components/shownitems.h"
#include "panelfixture.h"

#include <QTest>

#include <algorithm>

namespace vesk {

/// A test in the panel's real window, which is new for each function.
class PanelTest : public QObject
{
    Q_OBJECT

protected:
    using Field = PanelModel::Field;

    [[nodiscard]] PanelModel &model() const { return m_fixture->model; }
    [[nodiscard]] PanelWindow &panel() const { return m_fixture->panel; }
    [[nodiscard]] QQuickView &window() const { return m_fixture->panel.window(); }
    [[nodiscard]] NotesStore &store() const { return *m_fixture->store; }
    Note &addNote(const QString &text) { return m_fixture->addNote(text); }

    void show()
    {
        panel().showPanel();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&window(), key, modifiers);
    }
    void type(const QString &text)
    {
        for (const QChar letter : text)
            QTest::keyClick(&window(), letter.toLatin1());
    }
    void click(const QQuickItem &item) { QTest::mouseClick(&window(), Qt::LeftButton, {}, middle(item)); }
    [[nodiscard]] static QPoint middle(const QQuickItem &item)
    {
        return item.mapToScene(item.boundingRect().center()).toPoint();
    }
    /// All visible items of a QML type, ordered by position.
    [[nodiscard]] QList<QQuickItem *> shown(const QByteArray &type) const
    {
        QList<QQuickItem *> found =
            shownItems(window(), [&type](const QQuickItem &item) { return isOfType(item, type); });
        std::ranges::sort(found, {}, [](QQuickItem *item) { return item->mapToScene({}).y(); });
        return found;
    }

    /// The only button with this name; null if it is not shown.
    [[nodiscard]] QQuickItem *button(const QString &name) const
    {
        for (const char *type : {"SymbolButton", "CopyButton", "TabButton", "PanelMenuButton", "PressButton",
                                 "ChecklistRow", "SourceButton"}) {
            for (QQuickItem *item : shown(type)) {
                if (item->property("name").toString() == name)
                    return item;
            }
        }
        return nullptr;
    }
    [[nodiscard]] bool hasEditor() const { return !shown("NoteEditor").isEmpty(); }
    /// The text of the selected note; empty if none is selected.
    [[nodiscard]] QString focusedText() const
    {
        const std::optional<RecordId> &id = model().selection()->selected();
        return id ? store().findNote(*id)->text() : QString();
    }
    /// Adds the notes "one", "two" and "three", and shows the panel.
    void addThree()
    {
        for (const char *text : {"one", "two", "three"})
            addNote(QString::fromLatin1(text));
        show();
        QTRY_COMPARE(shown("NoteCard").size(), 3);
    }

    std::unique_ptr<PanelFixture> m_fixture;

protected Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<PanelFixture>();
        m_fixture->appearance.setReduceMotion(true);
    }
    void cleanup() { m_fixture.reset(); }
};

} // namespace vesk
