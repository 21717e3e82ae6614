// SPDX-License-Identifier: MIT
#include "editor/notetextlook.h"

#include "editor/notetext.h"

#include <QTextDocument>

namespace vesk {

void NoteTextLook::start(const NoteText &text, Theme &theme)
{
    m_styler = std::make_unique<Styler>(text);
    m_theme = &theme;
    connect(this, &NoteTextLook::changed, this, &NoteTextLook::apply);
    connect(&theme, &Theme::changed, this, &NoteTextLook::apply);
    apply();
    m_directions = std::make_unique<ParagraphDirections>(text.document());
    m_directions->touch(0, static_cast<int>(text.text().size()));
    m_directions->apply();
    connect(&text, &NoteText::touched, this, [this](int position, int length) {
        m_styler->restyle(position, length);
        m_directions->touch(position, length);
    });
    connect(&text.document(), &QTextDocument::contentsChanged, this, [this] { m_directions->apply(); });
}

void NoteTextLook::apply()
{
    if (!m_theme)
        return;
    m_styler->setLook({.scale = scale(),
                       .fontSize = m_fontSize,
                       .titleBoost = m_titleBoost,
                       .titleWeight = m_titleWeight,
                       .secondary = m_theme->secondary(),
                       .tertiary = m_theme->tertiary(),
                       .quaternary = m_theme->quaternary(),
                       .accent = m_theme->accent()},
                      m_firstLineIsTitle);
}

} // namespace vesk
