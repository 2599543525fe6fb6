// A place for status icons, for tests: takes every icon that a program registers, and says so in a line.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>

#include <iostream>

class StatusArea : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost CONSTANT)
    Q_PROPERTY(int ProtocolVersion READ version CONSTANT)

public:
    bool hasHost() const { return true; }
    int version() const { return 0; }

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& /*service*/) {
        std::cout << "item " << qPrintable(message().service()) << std::endl;
    }
};

int main(int argc, char* argv[]) {
    QCoreApplication application(argc, argv);
    StatusArea area;
    auto bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), &area,
                            QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAllProperties) ||
        !bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")))
        return 1;
    std::cout << "ready" << std::endl;
    return QCoreApplication::exec();
}

#include "status_area.moc"
