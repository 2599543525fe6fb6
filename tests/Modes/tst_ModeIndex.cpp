#include "Modes/ModeIndex.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

/// Few different labels, so that sites of different modes often lie within each other.
QString randomHost(QRandomGenerator& random) {
    static const QStringList labels{u"a"_s, u"b"_s, u"ab"_s, u"com"_s, u"www"_s, u""_s};
    QStringList host;
    for (int count = random.bounded(1, 5); count > 0; --count)
        host.append(labels[random.bounded(labels.size())]);
    return host.join(u'.');
}

QList<Mode> randomModes(QRandomGenerator& random) {
    QList<Mode> modes(random.bounded(6));
    for (Mode& mode : modes) {
        for (int count = random.bounded(7); count > 0; --count) {
            mode.sites.append(randomHost(random));
            mode.apps.append(QString(QChar(u'a' + random.bounded(8))));
        }
    }
    return modes;
}

using Owner = std::optional<qsizetype>;

/// The definition: the preferred mode if it lists it, else the first that does.
Owner ownerByDefinition(const QList<Mode>& modes, qsizetype preferred, const std::function<bool(const Mode&)>& lists) {
    if (preferred >= 0 && preferred < modes.size() && lists(modes[preferred]))
        return preferred;
    for (qsizetype position = 0; position < modes.size(); ++position) {
        if (lists(modes[position]))
            return position;
    }
    return {};
}

} // namespace

class ModeIndexTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sitesTakeTheirSubdomainsWithThem() {
        const QStringList sites{u"docs.example.org"_s, u"localhost"_s};
        for (const char* host : {"docs.example.org", "a.b.docs.example.org", "localhost"})
            QVERIFY2(Mode::site(QString::fromLatin1(host), sites), host);
        for (const char* host : {"example.org", "mail.example.org", "notdocs.example.org", "Docs.example.org",
                                 "docs.example.org.evil.net", ""})
            QVERIFY2(!Mode::site(QString::fromLatin1(host), sites), host);
    }

    void answersWhatALoopOverTheModesAnswers() {
        QRandomGenerator random(20260105);
        int found = 0, foundPreferred = 0;
        for (int round = 0; round < 400; ++round) {
            const QList<Mode> modes = randomModes(random);
            const ModeIndex index(modes);
            for (int question = 0; question < 40; ++question) {
                const QString host = randomHost(random);
                const QString app(QChar(u'a' + random.bounded(9)));
                const qsizetype preferred = random.bounded(-1, 7);
                const Owner site =
                    ownerByDefinition(modes, preferred, [&](const Mode& mode) { return Mode::site(host, mode.sites); });
                const Owner appOwner =
                    ownerByDefinition(modes, preferred, [&](const Mode& mode) { return mode.apps.contains(app); });
                QVERIFY2(index.ownerOfSite(host, preferred) == site, qPrintable(host));
                QVERIFY2(index.ownerOfApp(app, preferred) == appOwner, qPrintable(app));
                found += site ? 1 : 0;
                foundPreferred += site && *site == preferred && *site > 0 ? 1 : 0;
            }
        }
        QVERIFY(found > 1000 && foundPreferred > 100); // else the questions were no test
    }
};

QTEST_APPLESS_MAIN(ModeIndexTest)
#include "tst_ModeIndex.moc"
