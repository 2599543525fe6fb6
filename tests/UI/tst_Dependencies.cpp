#include "UI/Settings/Dependencies.h"

#include <QFile>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class DependenciesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Whatever the packages that Fendrel is built with or runs with are, somebody's licence goes with them.
    void namesEveryPackage() {
        QStringList named;
        for (const Dependency& dependency : dependencies())
            named += dependency.packages;
        // These make Fendrel, and no part of them is in it.
        const QStringList tools{
            u"g++"_s,           u"cmake"_s,         u"ninja-build"_s, u"pkg-config"_s, u"qt6-declarative-dev-tools"_s,
            u"qt6-tools-dev"_s, u"qt6-l10n-tools"_s};
        QFile list(QStringLiteral(PACKAGES));
        QVERIFY(list.open(QIODevice::ReadOnly));
        QString section;
        int packages = 0;
        for (const QString& line : QString::fromUtf8(list.readAll()).split(u'\n')) {
            const QString package = line.section(u'#', 0, 0).trimmed();
            if (package.startsWith(u'['))
                section = package;
            else if (!package.isEmpty() && (section == "[build]"_L1 || section == "[run]"_L1)) {
                ++packages;
                QVERIFY2(named.contains(package) || tools.contains(package), qPrintable(package));
            }
        }
        QVERIFY(packages > 20);
    }
};

QTEST_APPLESS_MAIN(DependenciesTest)
#include "tst_Dependencies.moc"
