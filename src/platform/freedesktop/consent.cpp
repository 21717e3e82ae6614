// SPDX-License-Identifier: MIT
#include "platform/freedesktop/consent.h"

#include "platform/freedesktop/inidefaults.h"

namespace vesk {

namespace {

const QString kKey = QStringLiteral("allowsReadingApplications");

} // namespace

Consent::Consent(IniDefaults &defaults)
    : m_defaults(defaults)
    , m_isGiven(defaults.boolForKey(kKey))
{
    connect(&m_defaults, &IniDefaults::changedOutside, this, &Consent::update);
}

void Consent::setGiven(bool isGiven)
{
    m_defaults.setBool(isGiven, kKey);
    update();
}

void Consent::update()
{
    const bool isGiven = m_defaults.boolForKey(kKey);
    if (m_isGiven == isGiven)
        return;
    m_isGiven = isGiven;
    Q_EMIT changed();
}

} // namespace vesk
