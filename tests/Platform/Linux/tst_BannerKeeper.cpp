#include "Platform/Linux/Banners/BannerKeeper.h"
#include "Table.h"
#include "fakes/FakeSettings.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

/// What a desktop has, beyond the life of our program. It answers in the order in which it was asked; the switch of the
/// server b knows without asking, but only what it was told.
struct Desktop {
    QMap<QString, std::optional<Banners>> banners{{u"a"_s, Banners::shownByDefault}, {u"b"_s, Banners::shown}};
    QList<std::function<void()>> bus;
    bool isSavedBeforeWritten = true;

    void answerOne() { bus.takeFirst()(); }
    void answerAll() {
        while (!bus.isEmpty())
            answerOne();
    }
};

class FakeSwitch final : public BannerSwitch {
public:
    FakeSwitch(QString server, Desktop& desktop, const FakeSettings& settings)
        : m_server(std::move(server)), m_desktop(desktop), m_settings(settings) {}

    QString server() const override { return m_server; }

    Handle read(const WaitUntil& deadline, ReadDone done) override {
        const auto asked = m_desktop.banners[m_server];
        return ask(deadline, [this, asked, done = std::move(done)](bool isWanted) {
            if (isWanted)
                done(m_server == u"b"_s ? asked : m_desktop.banners[m_server]);
        });
    }

    Handle write(Banners banners, const WaitUntil& deadline, WriteDone done) override {
        if (banners == Banners::quiet && !m_settings.values.contains(u"savedBanners"_s))
            m_desktop.isSavedBeforeWritten = false;
        return ask(deadline, [this, banners, done = std::move(done)](bool isWanted) {
            auto& now = m_desktop.banners[m_server];
            if (now)
                now = banners;
            if (isWanted)
                done(now.has_value());
        });
    }

private:
    Handle ask(const WaitUntil& deadline, std::function<void(bool isWanted)> answer) {
        const auto isWanted = std::make_shared<bool>(true);
        m_desktop.bus.append([isWanted, answer = std::move(answer)] { answer(*isWanted); });
        if (deadline)
            m_desktop.answerAll();
        return Handle([isWanted] { *isWanted = false; });
    }

    QString m_server;
    Desktop& m_desktop;
    const FakeSettings& m_settings;
};

/// What happens, one character each: q and l quiet and make loud, a and b that server comes, 0 it goes, s and S the
/// user shows or quiets a's banners himself, x a's switch does not answer from now on, k we are killed, e we end, n we
/// start again; a comma waits for one answer, a dot for all.
struct World {
    Desktop desktop;
    FakeSettings settings;
    std::optional<BannerKeeper> keeper;

    void start() {
        BannerKeeper::Switches switches;
        for (const auto& server : {u"a"_s, u"b"_s})
            switches.push_back(std::make_unique<FakeSwitch>(server, desktop, settings));
        keeper.emplace(settings, std::move(switches));
    }

    void kill() {
        const auto kept = std::pair(desktop, settings);
        keeper.reset();
        std::tie(desktop, settings) = kept;
    }

    void play(const QString& story) {
        const auto set = [&](std::optional<Banners> banners) { desktop.banners[u"a"_s] = banners; };
        const QHash<QChar, std::function<void()>> steps{
            {u'q', [&] { keeper->setQuiet(true); }},
            {u'l', [&] { keeper->setQuiet(false); }},
            {u'a', [&] { keeper->setServer(u"a"_s); }},
            {u'b', [&] { keeper->setServer(u"b"_s); }},
            {u'0', [&] { keeper->setServer({}); }},
            {u's', [&] { set(Banners::shown); }},
            {u'S', [&] { set(Banners::quiet); }},
            {u'x', [&] { set({}); }},
            {u'k', [&] { kill(); }},
            {u'e', [&] { keeper.reset(); }},
            {u'n', [&] { start(); }},
            {u',', [&] { desktop.answerOne(); }},
            {u'.', [&] { desktop.answerAll(); }},
        };
        start();
        for (const QChar step : story)
            steps[step]();
    }
};

} // namespace

class BannerKeeperTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void givesBackWhatWasThere_data() {
        constexpr auto byDefault = Banners::shownByDefault, shown = Banners::shown, quiet = Banners::quiet;
        const Table<QString, Banners, Banners, QByteArray> row("story", "a", "b", "saved");
        row("quieted", u"a.q."_s, quiet, shown, R"({"a":"shownByDefault"})");
        row("wanted before the server came", u"q.b."_s, byDefault, quiet, R"({"b":"shown"})");
        row("given back", u"a.q.l."_s, byDefault, shown, "");
        row("at the end", u"a.q.e"_s, byDefault, shown, "");
        row("at the end, before it was quieted", u"a.qe"_s, byDefault, shown, "");
        row("at the end, while being quieted", u"a.q,e"_s, byDefault, shown, "");
        row("at the end, while being given back", u"a.q.l,e"_s, byDefault, shown, "");
        row("killed", u"a.q.k"_s, quiet, shown, R"({"a":"shownByDefault"})");
        row("killed and started", u"a.q.kn."_s, byDefault, shown, "");
        row("killed, started, quieted", u"a.q.kna.q."_s, quiet, shown, R"({"a":"shownByDefault"})");
        row("killed, started, quieted, given back", u"a.q.knaq.l."_s, byDefault, shown, "");
        row("quiet by the user", u"S.a.q."_s, quiet, shown, "");
        row("quiet by the user, given back", u"S.a.q.l.e"_s, quiet, shown, "");
        row("shown by the user meanwhile", u"a.q.s.l."_s, shown, shown, "");
        row("shown by the user, ended", u"a.q.se"_s, shown, shown, "");
        row("shown by the user after a kill", u"a.q.ksn."_s, shown, shown, "");
        row("another server", u"a.q.b."_s, byDefault, quiet, R"({"b":"shown"})");
        row("another server, given back", u"a.q.0.b.l."_s, byDefault, shown, "");
        row("fast, quiet in the end", u"a.qlqlq."_s, quiet, shown, R"({"a":"shownByDefault"})");
        row("loud while being quieted", u"a.q,l."_s, byDefault, shown, "");
        row("loud before it is known to be quiet", u"b.q,l."_s, byDefault, shown, "");
        row("quiet while being given back", u"a.q.l,q."_s, quiet, shown, R"({"a":"shownByDefault"})");
        row("fast, loud in the end", u"a.q.lqlql."_s, byDefault, shown, "");
        row("gone, and back where it was", u"a.q.xl.Sa."_s, byDefault, shown, "");
        row("gone while being given back, and back", u"a.q.l,x.Sa."_s, byDefault, shown, "");
        row("gone at the end, back at the next start", u"a.q.xeSn."_s, byDefault, shown, "");
    }

    void givesBackWhatWasThere() {
        QFETCH(QString, story);
        World world;
        world.play(story);
        QTEST(*world.desktop.banners[u"a"_s], "a");
        QTEST(*world.desktop.banners[u"b"_s], "b");
        QTEST(world.settings.read<QByteArray>(u"savedBanners"_s).value_or(QByteArray()), "saved");
        QVERIFY(world.desktop.isSavedBeforeWritten);
    }
};

QTEST_GUILESS_MAIN(BannerKeeperTest)
#include "tst_BannerKeeper.moc"
