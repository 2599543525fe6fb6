#include "Platform/Linux/Notifications/NotificationRoutes.h"
#include "Platform/Linux/Notifications/NotificationText.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace notificationMessage;
using namespace Qt::StringLiterals;

namespace {

using Messages = QList<NotificationMessage>;

Notify notify(const char* sender, quint64 serial, const char* title, quint32 replaces = 0,
              const QVariantMap& hints = {}) {
    return {.sender = QString::fromLatin1(sender),
            .serial = serial,
            .appName = u"App"_s,
            .replaces = replaces,
            .summary = QString::fromLatin1(title),
            .hints = hints};
}

QVariantMap content(const char* title) {
    return {{u"title"_s, QString::fromLatin1(title)}, {u"body"_s, u"1 <b>&amp;"_s}};
}

} // namespace

/// What becomes of the messages on the bus.
class NotificationRoutesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsEachOnce_data() {
        const Table<Messages, QStringList> row("messages", "shown"); // number, declared entry, sender, title
        const Answer answer{.receiver = u":1.5"_s, .serial = 7, .id = 3};
        const NewOwner part{.name = u"org.freedesktop.impl.portal.desktop.gtk"_s, .owner = u":1.2"_s};
        const AskPortal ask{.sender = u":1.5"_s, .id = u"one"_s};
        const FromPortal handed{.id = u"one"_s, .content = content("a")};
        const FromPortal handedOfKnown{.application = u"app"_s, .id = u"one"_s, .content = content("a")};
        const AskShell byPart{.sender = u":1.2"_s, .application = u"app"_s, .id = u"one"_s, .content = content("a")};
        const AskShell direct{.sender = u":1.6"_s, .application = u"app"_s, .id = u"one"_s, .content = content("b")};
        const NewOwner server{.name = u"org.freedesktop.Notifications"_s, .owner = u":1.9"_s};

        row("replaced by its number", {notify(":1.5", 7, "a"), answer, notify(":1.6", 1, "b", 3)},
            {u"1  :1.5 a"_s, u"1  :1.6 b"_s});
        row("another's answer", {notify(":1.6", 7, "a"), answer, notify(":1.5", 1, "b", 3)},
            {u"1  :1.6 a"_s, u"2  :1.5 b"_s});
        row("a new server counts anew", {notify(":1.5", 7, "a"), answer, server, notify(":1.6", 1, "b", 3)},
            {u"1  :1.5 a"_s, u"2  :1.6 b"_s});
        row("seen twice", {notify(":1.5", 7, "a"), notify(":1.5", 7, "a")}, {u"1  :1.5 a"_s});
        row("through the portal to a server", {part, ask, handed, notify(":1.2", 8, "a")}, {u"1  :1.5 a"_s});
        row("through the portal to a shell", {part, ask, handedOfKnown, byPart, ask, handedOfKnown},
            {u"1 app :1.5 a"_s, u"1 app :1.5 a"_s});
        row("the portal's part has ended", {part, NewOwner{.name = part.name, .owner = {}}, notify(":1.2", 8, "a")},
            {u"1  :1.2 a"_s});
        row("two programs that the portal doesn't know",
            {ask, handed, AskPortal{.sender = u":1.6"_s, .id = u"one"_s}, handed}, {u"1  :1.5 a"_s, u"2  :1.6 a"_s});
        row("to a shell", {direct, notify(":1.5", 7, "c"), direct},
            {u"1 app :1.6 b"_s, u"2  :1.5 c"_s, u"1 app :1.6 b"_s});
        row("names its entry", {notify(":1.5", 1, "a", 0, {{u"desktop-entry"_s, u"org.Chat.desktop"_s}})},
            {u"1 org.Chat :1.5 a"_s});
        const QMap<QString, QVariantMap> passing{
            {u"transient"_s, {{u"transient"_s, true}}},
            {u"transient as a byte"_s, {{u"transient"_s, 1U}}},
            {u"progress"_s, {{u"value"_s, 0}}},
            {u"transfer"_s, {{u"category"_s, u"transfer"_s}}},
            {u"volume"_s, {{u"x-canonical-private-synchronous"_s, u"volume"_s}}},
        };
        for (const auto& [name, hints] : passing.asKeyValueRange())
            row(qPrintable(name), {notify(":1.5", 1, "a", 0, hints)}, {});
        row("complete", {notify(":1.5", 1, "a", 0, {{u"category"_s, u"transfer.complete"_s}, {u"value"_s, -1}})},
            {u"1  :1.5 a"_s});
        row("empty", {notify(":1.5", 1, " ")}, {});
    }

    void countsEachOnce() {
        QFETCH(Messages, messages);
        NotificationRoutes routes;
        QStringList shown;
        for (const auto& message : messages) {
            if (const auto taken = routes.take(message)) {
                shown.append(
                    u"%1 %2 %3 %4"_s.arg(taken->number).arg(taken->declaredEntry, taken->sender, taken->title));
                if (std::holds_alternative<AskShell>(message))
                    QCOMPARE(taken->body, u"1 <b>&amp;"_s); // only the server's texts have markup
            }
        }
        QTEST(shown, "shown");
    }

    void undoesMarkup_data() {
        const Table<QString> row("text");
        row("<b>a</b><BR/>b<br>c", u"a\nb\nc"_s);
        row("a &lt;b&gt; &amp;amp; &#39;&#x1F600;&apos;", QString::fromUtf8("a <b> &amp; '\xF0\x9F\x98\x80'"));
        row("<a href=\"https://a.b/?c&amp;d\">here</a> <img src='x' alt='a &quot;b&quot;'/>", u"here a \"b\""_s);
        row("1 < 2, <3 and <you>, R&D; &bogus; &#0; &#xD800;", u"1 < 2, <3 and <you>, R&D; &bogus; &#0; &#xD800;"_s);
        row("cut <a href=\"", u"cut <a href=\""_s);
    }

    void undoesMarkup() { QTEST(plainText(QString::fromLatin1(QTest::currentDataTag())), "text"); }

    void keepsWholeCharacters() {
        const QString smiles = QString::fromUtf8("\xF0\x9F\x98\x80").repeated(3000);
        QCOMPARE(boundedTitle(smiles), smiles.first(500));
        QCOMPARE(boundedTitle(u"a"_s + smiles), u"a"_s + smiles.first(498));
        QCOMPARE(boundedBody(smiles), smiles.first(4000));
    }
};

QTEST_APPLESS_MAIN(NotificationRoutesTest)
#include "tst_NotificationRoutes.moc"
