// SPDX-License-Identifier: MIT
#include "platform/accessibility.h"

namespace vesk {

const QString Accessibility::kWebAreaRole = QStringLiteral("document web");

AccessibleElement Accessibility::systemWideElement()
{
    return {};
}

AccessibleElement Accessibility::applicationElement(qint64 processIdentifier)
{
    return {.processIdentifier = processIdentifier, .address = {}};
}

} // namespace vesk
