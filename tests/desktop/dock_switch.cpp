// The system's dock, hidden and given back by commands, for tests. Its settings are in the file that it is given.
// Commands: settle, on, off, stop, quit, and flip with a number, which goes on until the program is killed.

#include "Dock/DockReplacement.h"
#include "Platform/Linux/Desktop/GSettingsConfiguration.h"
#include "Platform/Linux/Docks/DockDrivers.h"
#include "Platform/Null/NullDisplays.h"
#include "Platform/Null/NullPointerGuard.h"
#include "Platform/Shared/SettingsFile.h"
#include "Platform/Shared/SystemClock.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QSocketNotifier>

#include <unistd.h>

#include <iostream>
#include <optional>
#include <string>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

void say(const QString& line) {
    std::cout << qPrintable(line) << std::endl;
}

class DockSwitch {
public:
    explicit DockSwitch(const QString& file) : m_settings(file, m_disk, m_clock) {
        m_dock.onRunningChanged = [this] { tell(); };
        m_dock.onEdgesChanged = [this] { tell(); };
    }

    void run(const QStringList& command) {
        if (command[0] == u"flip"_s) {
            m_random.seed(command[1].toUInt());
            replacement();
            flip();
        } else if (command[0] == u"stop"_s) {
            replacement().stop([] { say(u"stopped"_s); });
        } else if (command[0] == u"settle"_s) {
            replacement().settle();
        } else {
            replacement().set(command[0] == u"on"_s);
        }
    }

private:
    DockReplacement& replacement() {
        if (!m_replacement)
            m_replacement.emplace(m_dock, m_pointer, m_displays, m_settings, m_clock);
        return *m_replacement;
    }

    void tell() {
        QStringList edges;
        for (const Qt::Edge edge : m_dock.edges())
            edges.append(QString::number(edge));
        say((QStringList{m_dock.running().value_or(u"none"_s)} + edges).join(u' '));
    }

    /// In the middle of what was begun as often as when it is over.
    void flip() {
        m_reading = m_dock.read(*m_dock.running(), [this](const auto&) {
            if (m_random.bounded(3) == 0)
                m_replacement->set(!m_replacement->isOn());
            flip();
        });
    }

    Worker m_disk{u"disk"_s};
    SystemClock m_clock;
    SettingsFile m_settings;
    DesktopDock m_dock{dockDrivers(std::make_shared<GSettingsConfiguration>(), m_clock)};
    NullPointerGuard m_pointer;
    NullDisplays m_displays;
    std::optional<DockReplacement> m_replacement;
    QRandomGenerator m_random;
    Handle m_reading;
};

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    DockSwitch dock(QString::fromLocal8Bit(argv[1]));
    QSocketNotifier commands(STDIN_FILENO, QSocketNotifier::Read);
    std::ios::sync_with_stdio(false); // so that it is known what was read already
    QObject::connect(&commands, &QSocketNotifier::activated, [&] {
        do {
            std::string line;
            if (!std::getline(std::cin, line) || line == "quit")
                return QCoreApplication::quit();
            dock.run(QString::fromStdString(line).split(u' '));
        } while (std::cin.rdbuf()->in_avail() > 0);
    });
    return QCoreApplication::exec();
}
