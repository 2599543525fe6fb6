#include "Base/Sqlite.h"
#include "Base/Worker.h"
#include "Files.h"
#include "Modes/ModeStore.h"
#include "Table.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

#include <cstdio>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

struct Home {
    QTemporaryDir directory;
    QString folder = directory.filePath(u"data/Fendrel"_s);
    QString file = folder + u"/Modes.store"_s;
    Worker disk{u"disk"_s};

    /// What a later start of the program finds.
    QList<Mode> load() { return ModeStore(folder, disk).load(); }
    void save(const QList<Mode>& modes) {
        ModeStore store(folder, disk);
        store.load();
        store.save(modes);
        disk.flush();
    }
};

QList<Mode> manyModes(int count, const QString& name) {
    QList<Mode> modes;
    for (int index = 0; index < count; ++index) {
        modes.append(Mode{.id = u"mode %1"_s.arg(index), .name = name, .apps = QStringList(200, u"org.example.App"_s)});
    }
    return modes;
}

using Damage = std::function<QByteArray(const QByteArray&)>;

/// The child's life: saves one state after another and says so, until its alarm kills it in the midst of it.
int saveUntilKilled(const QString& folder, unsigned microseconds) {
    Worker disk(u"disk"_s);
    ModeStore store(folder, disk);
    store.load();
    for (int state = 1;; ++state) {
        if (state == 3)
            ::ualarm(microseconds, 0);
        store.save(manyModes(state % 7 + 1, QString::number(state)));
        disk.flush();
        std::printf("%d\n", state);
        std::fflush(stdout);
    }
}

} // namespace

class ModeStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsExactlyWhatWasSaved() {
        Home home;
        const Mode full{.id = u"we\"ird\\ id"_s,
                        .name = u"Ünïcode \U0001F3A8"_s,
                        .symbol = u"hammer"_s,
                        .tint = Tint::teal,
                        .apps = {u"b"_s, u"a"_s, u"[\"c\"]"_s},
                        .sites = {u"x.org"_s},
                        .entryDelay = Seconds(0.1),
                        .widgets = {u"clock"_s, u"weather"_s},
                        .dailyBudget = Seconds(900.5)};
        const Mode plain{.id = u"plain"_s};
        const Mode third{.id = u"third"_s, .name = u"'; DROP TABLE StoredMode; --"_s};
        Mode renamed = plain;
        renamed.name = u"renamed"_s;
        // Each as it stands after the one before it: reordered, changed, one removed, all removed.
        const QList<QList<Mode>> states{{full, plain, third}, {third, full, plain}, {third, full, renamed},
                                        {third, renamed},     {full, renamed},      {}};
        for (const auto& state : states) {
            home.save(state);
            QCOMPARE(home.load(), state);
        }
    }

    void readsForeignRows() {
        Home home;
        home.save({});
        (*sqlite::Database::open(home.file))
            ->run(uR"(INSERT INTO StoredMode (id, name, tint, apps, sites, "order", dailyBudget) VALUES
        ('unknown tint', 'A', 'crimson', '["a", 7, null, "b"]', 'no list', 2, 60),
        ('nearly known', NULL, 'Amber', NULL, '{}', 1, 'text'),
        ('known', 'C', 'coral', '[]', '[]', -5, NULL))"_s);
        const QList<Mode> expected{{.id = u"known"_s, .name = u"C"_s, .tint = Tint::coral},
                                   {.id = u"nearly known"_s, .tint = Tint::graphite},
                                   {.id = u"unknown tint"_s,
                                    .name = u"A"_s,
                                    .tint = Tint::graphite,
                                    .apps = {u"a"_s, u"b"_s},
                                    .dailyBudget = Seconds(60)}};
        QCOMPARE(home.load(), expected);
    }

    void leavesOutUnknownWidgets() {
        Home home;
        home.save({{.id = u"a"_s, .widgets = {u"lava"_s, u"clock"_s}}});
        ModeStore store(home.folder, home.disk, [](const QString& widget) { return widget == "clock"_L1; });
        QCOMPARE(store.load().first().widgets, QStringList{u"clock"_s});
    }

    void keepsADamagedFileAside_data() {
        const Table<Damage> row("damage");
        row("no database", [](const QByteArray&) { return QByteArray("these are my modes\n"); });
        row("cut off", [](const QByteArray& sound) { return sound.left(sound.size() / 2); });
        row("pages overwritten",
            [](const QByteArray& sound) { return sound.left(4096) + QByteArray(sound.size() - 4096, '\xee'); });
    }

    void keepsADamagedFileAside() {
        QFETCH(const Damage, damage);
        Home home;
        home.save(manyModes(20, u"before"_s));
        const QByteArray damaged = damage(contentOf(home.file));
        putFile(home.file, damaged);

        const QList<Mode> fresh = manyModes(2, u"after"_s);
        ModeStore store(home.folder, home.disk);
        QCOMPARE(store.load(), QList<Mode>());
        const QString aside = home.file + u".damaged-1"_s;
        QVERIFY(store.problem().value_or(QString()).contains(aside));
        store.save(fresh);
        home.disk.flush();
        QCOMPARE(permissionsOf(home.file), 0600U); // before another start sets them
        QCOMPARE(home.load(), fresh);

        QCOMPARE(contentOf(aside), damaged);
        putFile(home.file, damaged); // once more: the first one stays as it is
        QCOMPARE(home.load(), QList<Mode>());
        QVERIFY(QFile::exists(home.file + u".damaged-2"_s));
    }

    void leavesAFileAloneThatItCannotUse() {
        const QString newer = u"PRAGMA user_version = 2"_s, locked = u"BEGIN EXCLUSIVE"_s;
        const QString otherColumns = u"ALTER TABLE StoredMode RENAME COLUMN apps TO programs"_s;
        for (const QString& sql : {newer, otherColumns, locked}) {
            Home home;
            home.save(manyModes(3, u"mine"_s));
            const auto other = *sqlite::Database::open(home.file);
            QVERIFY(other->run(sql));
            const QByteArray before = contentOf(home.file);
            ModeStore store(home.folder, home.disk);
            QCOMPARE(store.load(), QList<Mode>());
            QVERIFY(store.problem().value_or(QString()).contains(u"not kept"_s)); // the user has to know
            store.save(manyModes(1, u"other"_s));
            home.disk.flush();
            QVERIFY2(contentOf(home.file) == before, qPrintable(sql));
            QCOMPARE(QDir(home.folder).entryList({u"*damaged*"_s}), QStringList());
        }
    }

    void keepsOthersOut() {
        Home home;
        const auto mask = ::umask(0);
        home.save(manyModes(1, u"mine"_s));
        ::umask(mask);
        QCOMPARE(permissionsOf(home.folder), 0700U);
        QCOMPARE(permissionsOf(home.file), 0600U);
        ::chmod(QFile::encodeName(home.folder).constData(), 0755);
        ::chmod(QFile::encodeName(home.file).constData(), 0644);
        home.load();
        QCOMPARE(permissionsOf(home.folder), 0700U);
        QCOMPARE(permissionsOf(home.file), 0600U);
    }

    void survivesBeingKilledAtAnyMoment() {
        Home home;
        for (int round = 1; round <= 20; ++round) {
            QProcess child;
            const QStringList arguments{u"--save-until-killed"_s, home.folder, QString::number(round * 300)};
            child.start(QCoreApplication::applicationFilePath(), arguments);
            QVERIFY(child.waitForFinished(20'000));
            const int lastSaid = static_cast<int>(child.readAllStandardOutput().count('\n'));
            QVERIFY(lastSaid >= 2);
            const QList<Mode> found = home.load();
            QVERIFY(!found.isEmpty());
            const int state = found.first().name.toInt();
            QCOMPARE(found, manyModes(state % 7 + 1, QString::number(state)));
            // What it said that it saved is there; the save that it was killed in may be, too.
            QVERIFY2(state == lastSaid || state == lastSaid + 1, qPrintable(u"%1 after %2"_s.arg(state).arg(lastSaid)));
        }
    }
};

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    if (argc == 4 && QByteArrayView(argv[1]) == "--save-until-killed")
        return saveUntilKilled(QString::fromLocal8Bit(argv[2]), QByteArray(argv[3]).toUInt());
    ModeStoreTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_ModeStore.moc"
