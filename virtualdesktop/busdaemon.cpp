// SPDX-License-Identifier: MIT
#include "virtualdesktop/busdaemon.h"

#include "virtualdesktop/files.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

std::unique_ptr<BusDaemon> BusDaemon::start()
{
    std::unique_ptr<BusDaemon> bus(new BusDaemon);
    const QString file = bus->m_folder.filePath(u"bus.conf"_s);
    if (!writeFile(file, kConfiguration))
        return nullptr;
    // The home folder of the user who runs this may not exist.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, bus->m_folder.path());
    bus->m_process =
        ChildProcess::start({.program = u"dbus-daemon"_s,
                             .arguments = {u"--nofork"_s, u"--print-address=1"_s, u"--config-file="_s + file,
                                           u"--address=unix:dir="_s + bus->m_folder.path()},
                             .environment = environment,
                             .errorFile = bus->m_folder.filePath(u"bus.log"_s)});
    bus->m_address = bus->m_process ? bus->m_process->readLine(10s) : QString();
    return bus->m_address.isEmpty() ? nullptr : std::move(bus);
}

} // namespace vesk
