#include "Files.h"
#include "Platform/Linux/Desktop/LauncherEntries.h"
#include "fakes/FakeClock.h"

#include <QDBusConnection>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

/// A program on the bus that announces things of its button; it leaves with this object.
class Program {
public:
    explicit Program(const QString& name)
        : m_name(name), m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)) {}
    ~Program() { QDBusConnection::disconnectFromBus(m_name); }

    void announce(const QString& application, const QVariantMap& properties) {
        auto signal = QDBusMessage::createSignal(u"/any/path"_s, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
        signal << application << properties;
        m_bus.send(signal);
    }

private:
    QString m_name;
    QDBusConnection m_bus;
};

} // namespace

class LauncherEntriesTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    FakeClock m_clock;
    std::shared_ptr<ApplicationCatalog> m_catalog;

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "this test wants a session bus of its own");
        const QByteArray entry = "[Desktop Entry]\nType=Application\nName=A\nExec=a\n";
        for (const QString& id : {u"firefox"_s, u"org.example.Two_words-1"_s})
            putFile(m_folder.filePath(id + u".desktop"_s), entry);
        m_catalog = std::make_shared<ApplicationCatalog>(QStringList{m_folder.path()}, DesktopEntryContext{},
                                                         ApplicationIdentity::builtIn(), m_clock);
    }

    void badgesComeAndGoWithTheirPrograms() {
        LauncherEntries entries(m_catalog);
        QStringList changed;
        entries.onChanged = [&](const QString& bundleID) { changed.append(bundleID); };
        const QString firefox = u"org.mozilla.firefox"_s;
        const QString words = u"org.example.Two_words-1"_s;
        {
            Program program(u"one"_s);
            program.announce(u"application://unknown.desktop"_s, {{u"urgent"_s, true}});
            program.announce(u"no address"_s, {{u"urgent"_s, true}});
            program.announce(u"application://firefox.desktop"_s, {{u"count"_s, 3}}); // not to be seen yet
            program.announce(u"application://firefox.desktop"_s, {{u"count-visible"_s, true}});
            QTRY_COMPARE(entries.badge(firefox), AppBadge{.count = 3});
            QCOMPARE(changed, QStringList{firefox});

            Program other(u"two"_s); // takes the button over, and with it what was said
            other.announce(u"application://firefox.desktop"_s, {{u"urgent"_s, true}});
            QTRY_COMPARE(entries.badge(firefox), AppBadge{.isUrgent = true});
            program.announce(u"application://%1.desktop"_s.arg(words),
                             {{u"progress"_s, 0.5}, {u"progress-visible"_s, true}});
            QTRY_COMPARE(entries.badge(words), AppBadge{.progress = 0.5});
        }
        QTRY_COMPARE(changed.size(), 5);
        QCOMPARE(entries.badge(firefox), AppBadge());
        QCOMPARE(entries.badge(words), AppBadge());
    }

    void takesNothingAbsurd() {
        const auto badge = [](const QVariantMap& changes) {
            LauncherProperties said{.count = 1, .progress = 0.5, .showsCount = true, .showsProgress = true};
            said.take(changes);
            return said.badge();
        };
        const AppBadge before{.count = 1, .progress = 0.5};
        const double infinite = std::numeric_limits<double>::infinity();
        QCOMPARE(badge({{u"count"_s, u"7"_s}, {u"progress"_s, std::nan("")}, {u"urgent"_s, 1}}), before);
        QCOMPARE(badge({{u"count"_s, 7.5}, {u"progress"_s, u"all"_s}, {u"count-visible"_s, u"no"_s}}), before);
        QCOMPARE(badge({{u"count"_s, -7}, {u"progress"_s, infinite}}), (AppBadge{.count = 0, .progress = 1}));
        QCOMPARE(badge({{u"count"_s, std::numeric_limits<quint64>::max()}, {u"progress"_s, -1.0}}),
                 (AppBadge{.count = std::numeric_limits<qint64>::max(), .progress = 0}));
    }
};

QTEST_GUILESS_MAIN(LauncherEntriesTest)
#include "tst_LauncherEntries.moc"
