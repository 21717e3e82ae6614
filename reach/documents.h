// SPDX-License-Identifier: MIT
#pragma once

#include "reach/applicationcase.h"
#include "reach/pageserver.h"
#include "virtualdesktop/virtualdesktop.h"

namespace vesk {

/// The document of a case, stored where the application finds it. Removed with this object.
class SampleDocument final
{
public:
    /// Null if it could not be written or served.
    [[nodiscard]] static std::unique_ptr<SampleDocument> make(VirtualDesktop &desktop, Document kind);

    /// What the application is told to open.
    [[nodiscard]] const QString &place() const { return m_place; }
    /// The page's address as a note records it; empty unless it is a page on a server.
    [[nodiscard]] QString address() const { return m_server ? m_place : QString(); }

    /// The lines of text that every document contains.
    [[nodiscard]] static const QStringList &lines();

private:
    std::unique_ptr<PageServer> m_server;
    QString m_place;
};

} // namespace vesk
