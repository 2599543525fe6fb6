#include "Files.h"
#include "Platform/Linux/ModelServer/LocalHttpAddress.h"
#include "Platform/Linux/ModelServer/ModelServerList.h"
#include "Platform/Linux/ModelServer/ModelServerReply.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

namespace {

using Kind = SchemaProperty::Kind;

Question urgency() {
    return {
        .instructions = u"Decide."_s,
        .prompt = u"Title: a\u202E\"b\x1b\n<|im_end|>"_s + QChar(0xD800),
        .schemaName = u"Urgency"_s,
        // In an order that no alphabet has.
        .schema = {{.name = u"why"_s, .description = u"Few \"words\""_s},
                   {.name = u"urgent"_s, .kind = Kind::boolean, .description = u"Now?"_s},
                   {.name = u"mode"_s, .kind = Kind::choice, .description = u"Which"_s, .choices = {u"b"_s, u"a"_s}}}};
}

/// A reply of the chat-completions protocol with this answer.
QByteArray reply(const QByteArray& content, QLatin1StringView reason = "stop"_L1) {
    const QJsonObject message{{"content"_L1, QString::fromLatin1(content)}};
    const QJsonObject choice{{"finish_reason"_L1, reason}, {"message"_L1, message}};
    return QJsonDocument(QJsonObject{{"choices"_L1, QJsonArray{choice}}}).toJson();
}

} // namespace

class ModelServerProtocolTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void staysOnThisMachine_data() {
        const Table<QByteArrayList, QString> row("endpoints", "refusal");
        row("localhost:8080", {"127.0.0.1:8080", "[::1]:8080"}, {});
        row(" http://127.0.0.1:8080/v1/ ", {"127.0.0.1:8080"}, {});
        row("127.9.8.7:1", {"127.9.8.7:1"}, {});
        row("[::1]:8080", {"[::1]:8080"}, {});
        row("unix:/run/model.sock", {"/run/model.sock"}, {});
        row("/run/model.sock", {"/run/model.sock"}, {});
        for (const char* elsewhere :
             {"https://api.example.com", "192.168.0.2:8080", "example.com:80", "http://127.0.0.1@example.com:80/",
              "127.0.0.1.example.com:80", "0.0.0.0:8080", "[::ffff:10.0.0.1]:80", "localhost.:80"})
            row(elsewhere, {}, u"elsewhere"_s);
        for (const char* broken :
             {"localhost", "localhost:0", "localhost:99999", "https://localhost:80", "http://me@localhost:80",
              "localhost:80/other", "file:///etc/passwd", "[::1%eth0]:80", "unix:run", ":"})
            row(broken, {}, u"no address"_s);
    }

    void staysOnThisMachine() {
        QFETCH(const QString, refusal);
        QByteArrayList endpoints;
        const auto parsed = LocalHttpAddress::parse(QString::fromLatin1(QTest::currentDataTag()));
        if (parsed) {
            for (const LocalEndpoint& endpoint : parsed->endpoints)
                endpoints.append(endpoint.socket.isEmpty() ? endpoint.authority : endpoint.socket);
        } else {
            QVERIFY2(!refusal.isEmpty() && parsed.error().contains(refusal), qPrintable(parsed.error()));
        }
        QTEST(endpoints, "endpoints");
    }

    void asksInTheOrderOfTheSchema() {
        const auto body = [](ModelProtocol protocol) {
            return ModelServerRequest::question(protocol, u"m"_s, urgency()) + '\n';
        };
        QCOMPARE(body(ModelProtocol::chatCompletions),
                 contentOf(QStringLiteral(TEST_DATA) + u"/model/chat-completions.json"_s));
        QCOMPARE(body(ModelProtocol::ollama), contentOf(QStringLiteral(TEST_DATA) + u"/model/ollama.json"_s));
    }

    void takesOnlyWhatWasAskedFor_data() {
        const Table<QByteArray, QString> row("reply", "why"); // null: refused
        row("as asked", reply(R"({"why":" a\n b","urgent":false,"mode":"a"})"), u"a b"_s);
        row("in a fence, after thoughts",
            reply("<think>{}</think>\n```json\n{\"why\":\"x\",\"urgent\":false,\"mode\":\"a\"}\n```"), u"x"_s);
        for (const char* refused :
             {R"({"why":"x","urgent":false,"mode":"c"})", R"({"why":"x","urgent":"false","mode":"a"})",
              R"({"why":1,"urgent":false,"mode":"a"})", R"({"why":"x","urgent":false})",
              R"({"why":"x","urgent":false,"mode":"a","more":1})", R"({"why":"x","urgent":false,"mode":"a")", "[]", "",
              "prose", "```"}) {
            row(refused, reply(refused), {});
        }
        row("too long",
            reply(QByteArray(R"({"why":"x","urgent":false,"mode":"a"})").replace("x", QByteArray(121, 'x'))), {});
        row("cut", reply(R"({"why":"x","urgent":false,"mode":"a"})", "length"_L1), {});
        row("no text", R"({"choices":[{"message":{"content":null}}]})", {});
        row("no choice", R"({"choices":[]})", {});
        row("another protocol", R"({"message":{"content":"{}"}})", {});
    }

    void takesOnlyWhatWasAskedFor() {
        QFETCH(const QByteArray, reply);
        const auto answer = ModelServerReply::read(ModelProtocol::chatCompletions, reply, urgency().schema);
        QTEST(answer ? answer->value(u"why"_s) : QString(), "why");
        QVERIFY(!answer || answer->size() == 3);
    }

    void neverPicksAModelElsewhere() {
        const QByteArray elsewhere = R"({"name":"big:cloud"},{"name":"far","remote_host":"https://example.com"})";
        const QByteArray here = R"({"name":"embed-a"},{"name":"b:latest"},{"name":"c:latest"})";
        const auto models =
            ModelServerList::ollama(R"({"models":[)" + elsewhere + ',' + here + "]}", {u"c:latest"_s, u"big:cloud"_s});
        QVERIFY(models);
        const auto name = [&models](const QString& wanted) {
            const auto* const model = ModelServerList::pick(*models, wanted);
            return model && !model->isElsewhere ? model->name : QString();
        };
        QCOMPARE(name({}), u"c:latest"_s);
        QCOMPARE(name(u"b"_s), u"b:latest"_s);
        QCOMPARE(name(u"far"_s), QString());
        QCOMPARE(name(u"d"_s), QString());
    }
};

QTEST_APPLESS_MAIN(ModelServerProtocolTest)
#include "tst_ModelServerProtocol.moc"
