// SPDX-License-Identifier: MIT
#include "panel/panelheight.h"

#include "panel/panelplacement.h"
#include "platform/defaults.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const auto kKey = u"panelHeight"_s;

} // namespace

PanelHeight::PanelHeight(Defaults &defaults)
    : m_defaults(defaults)
    , m_wanted(std::max<qreal>(defaults.intForKey(kKey).value_or(kDefaultPanelHeight), kMinimumPanelHeight))
{
}

void PanelHeight::setWanted(qreal height)
{
    m_wanted = std::max(height, kMinimumPanelHeight);
}

void PanelHeight::remember()
{
    m_defaults.setInt(qRound(m_wanted), kKey);
}

} // namespace vesk
