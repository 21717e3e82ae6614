// SPDX-License-Identifier: MIT
#include "notes/prompt.h"

#include "notes/markup.h"

#include <utility>

namespace vesk {

Prompt::Prompt(const Clock &clock, const QString &text, Origin origin)
    : Prompt(Fields{
          .id = QUuid::createUuid(),
          .text = text,
          .isDone = false,
          .createdAt = clock.now(),
          .isCaptured = origin == Origin::Captured,
      })
{
}

Prompt::Prompt(Fields fields)
    : m_fields(std::move(fields))
{
    m_fields.text = markup::wellFormed(m_fields.text);
}

void Prompt::toggleDone()
{
    m_fields.isDone = !m_fields.isDone;
    if (m_observer)
        m_observer->promptChanged(*this);
}

} // namespace vesk
