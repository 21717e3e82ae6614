// SPDX-License-Identifier: MIT
#pragma once

#include "quicknote/quicknotebox.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace vesk {

/// The drafts in the quick-note box, one per mode. The hidden one is set aside. Drafts live as long as the
/// program.
class QuickNoteModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The box has the one.")
    /// The draft of the current mode, in the markup of notes.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(bool isChecklist READ isChecklist NOTIFY modeChanged)
    Q_PROPERTY(QString title READ title NOTIFY modeChanged)
    Q_PROPERTY(QString symbol READ symbol NOTIFY modeChanged)
    /// A line beside the draft, such as why it has no text; empty for none.
    Q_PROPERTY(QString remark READ remark NOTIFY remarkChanged)

public:
    /// Switches to the mode and its draft; a new checklist begins with a checkbox.
    void begin(QuickNoteBox::Mode mode);

    /// The draft as a note; empty if there is nothing to keep.
    [[nodiscard]] QString body() const;
    /// Drops the draft of the current mode.
    void clear() { setText({}); }

    [[nodiscard]] const QString &text() const { return m_text; }
    void setText(const QString &text);
    [[nodiscard]] bool isChecklist() const { return m_mode == QuickNoteBox::Mode::Checklist; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString symbol() const;
    [[nodiscard]] const QString &remark() const { return m_remark; }
    void setRemark(const QString &remark);

Q_SIGNALS:
    void textChanged();
    void modeChanged();
    void remarkChanged();

    // Requests from the view to the box.
    void saveRequested();
    void closeRequested();
    /// The user has started to drag the box by its background.
    void moveRequested();

private:
    QuickNoteBox::Mode m_mode = QuickNoteBox::Mode::Note;
    QString m_text;
    QString m_otherDraft;
    QString m_remark;
};

} // namespace vesk
