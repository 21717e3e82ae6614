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

/// A note's text beside the document that shows it. A document cannot hold every character: what it
/// would lose, or would not paint the line of, stands in it as another one of the same length. The text
/// itself is kept here and follows each change of the document. Positions are the same in both.
class NoteText final : public QObject, public EditedText
{
    Q_OBJECT

public:
    /// Takes over the document, which has to outlive this. Each paragraph gets this format.
    NoteText(QTextDocument &document, QTextBlockFormat paragraph, QObject *parent);

    [[nodiscard]] const QString &text() const override { return m_text; }
    [[nodiscard]] QTextDocument &document() const { return m_document; }
    /// The line that a paragraph of the document shows, without its line break.
    [[nodiscard]] QStringView line(const QTextBlock &block) const;
    /// The same line with the text that is being composed in it, as the user sees it.
    [[nodiscard]] QString composedLine(const QTextBlock &block) const;

    /// Puts another text in place of all there is. No change of the text is reported.
    void load(const QString &text);
    void replace(qsizetype position, qsizetype length, const QString &text) override;

Q_SIGNALS:
    /// A part of the document has changed, maybe in nothing but what is being composed in it. The
    /// layout does not know yet, and takes formats that are set now along with the change.
    void touched(int position, int length);
    /// The text has changed, other than by `load`; the layout has followed.
    void changed(const vesk::Splice &change);

private:
    void onContentsChange(int position, int removed, int added);
    void onContentsChanged();
    /// What a change by the document's own editing means for the text.
    void follow(qsizetype position, qsizetype removed, qsizetype added);
    [[nodiscard]] QString shownSlice(qsizetype position, qsizetype length) const;

    QTextDocument &m_document;
    QTextBlockFormat m_paragraph;
    QString m_text;
    std::optional<Splice> m_change;
    bool m_isFollowing = true;
};

} // namespace vesk
