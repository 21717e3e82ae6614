// SPDX-License-Identifier: MIT
#pragma once

#include "editor/editedtext.h"
#include "editor/splice.h"

#include <QObject>
#include <QTextBlockFormat>

#include <optional>

class QTextBlock;
class QTextDocument;

namespace vesk {

/// A note's text, kept alongside the document that displays it. A document cannot hold every character: one
/// that it would lose, or whose line it would not paint, is represented by another of the same length. The
/// actual text is kept here and follows each change of the document. Positions are the same in both.
class NoteText final : public QObject, public EditedText
{
    Q_OBJECT

public:
    /// Takes control of the document, which must outlive this object. Each paragraph gets this format.
    NoteText(QTextDocument &document, QTextBlockFormat paragraph, QObject *parent);

    [[nodiscard]] const QString &text() const override { return m_text; }
    [[nodiscard]] QTextDocument &document() const { return m_document; }
    /// The line that a paragraph of the document shows, without its line break.
    [[nodiscard]] QStringView line(const QTextBlock &block) const;
    /// The same line including the text being composed in it, as the user sees it.
    [[nodiscard]] QString composedLine(const QTextBlock &block) const;

    /// Replaces the whole text without reporting a change.
    void load(const QString &text);
    void replace(qsizetype position, qsizetype length, const QString &text) override;

Q_SIGNALS:
    /// A part of the document has changed, perhaps only in what is being composed in it. The layout has not
    /// been updated yet; formats set now are applied together with the change.
    void touched(int position, int length);
    /// The text has changed, except through `load`; the layout is up to date.
    void changed(const vesk::Splice &change);

private:
    void onContentsChange(int position, int removed, int added);
    void onContentsChanged();
    /// Applies a change made by editing the document to the text.
    void follow(qsizetype position, qsizetype removed, qsizetype added);
    [[nodiscard]] QString shownSlice(qsizetype position, qsizetype length) const;

    QTextDocument &m_document;
    QTextBlockFormat m_paragraph;
    QString m_text;
    std::optional<Splice> m_change;
    bool m_isFollowing = true;
};

} // namespace vesk
