// SPDX-License-Identifier: MIT
#pragma once

#include "components/theme.h"
#include "editor/paragraphdirections.h"
#include "editor/styler.h"

#include <QFont>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>

#include <memory>

namespace vesk {

class NoteText;

/// The appearance of a note's text in an editor: as set by its host, in the desktop's colours and text size.
/// Owned by the editor's view.
class NoteTextLook : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The editor's view has the one.")
    Q_PROPERTY(qreal fontSize MEMBER m_fontSize NOTIFY changed)
    Q_PROPERTY(bool firstLineIsTitle MEMBER m_firstLineIsTitle NOTIFY changed)
    /// In points, added to the font's size.
    Q_PROPERTY(qreal titleBoost MEMBER m_titleBoost NOTIFY changed)
    Q_PROPERTY(int titleWeight MEMBER m_titleWeight NOTIFY changed)

public:
    /// Styles the text from now on. The text must outlive this object.
    void start(const NoteText &text, Theme &theme);

    /// The user's text scale; 1 before the start.
    [[nodiscard]] qreal scale() const { return m_theme ? m_theme->fonts()->scale() : 1; }

Q_SIGNALS:
    void changed();

private:
    void apply();

    std::unique_ptr<Styler> m_styler;
    std::unique_ptr<ParagraphDirections> m_directions;
    QPointer<Theme> m_theme;
    qreal m_fontSize = 14;
    bool m_firstLineIsTitle = false;
    qreal m_titleBoost = 7;
    int m_titleWeight = QFont::Bold;
};

} // namespace vesk
