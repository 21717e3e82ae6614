// SPDX-License-Identifier: MIT
#include "guide/guide.h"

#include "platform/accessibility.h"
#include "platform/defaults.h"

using namespace Qt::StringLiterals;

// Made by the build. Naming it keeps the module's registration when the library is linked.
extern void qml_register_types_Vesk_Guide(); // NOLINT(readability-identifier-naming): not our name

namespace vesk {

namespace {

const auto kHasSeenGuide = u"hasSeenGuide"_s;

} // namespace

Guide::Guide(Accessibility &accessibility, Defaults &defaults, QObject *parent)
    : QObject(parent)
    , m_accessibility(accessibility)
    , m_defaults(defaults)
{
    [[maybe_unused]] static const volatile auto registration = &qml_register_types_Vesk_Guide;
    connect(&accessibility, &Accessibility::trustChanged, this, &Guide::isTrustedChanged);
}

void Guide::greet()
{
    if (!m_defaults.boolForKey(kHasSeenGuide))
        show();
}

void Guide::dismiss()
{
    if (!m_isShown)
        return;
    m_defaults.setBool(true, kHasSeenGuide);
    setShown(false);
}

void Guide::askForTrust()
{
    m_accessibility.askForTrust();
}

bool Guide::isTrusted() const
{
    return m_accessibility.isProcessTrusted();
}

void Guide::setShown(bool isShown)
{
    if (m_isShown == isShown)
        return;
    m_isShown = isShown;
    Q_EMIT isShownChanged();
}

} // namespace vesk
