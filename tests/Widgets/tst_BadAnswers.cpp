#include "AnswerReaders.h"
#include "Files.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <limits>

using namespace fendrel;

namespace {

QJsonValue parsed(const QByteArray& body) {
    const auto document = QJsonDocument::fromJson(body);
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QByteArray body(const QJsonValue& value) {
    const QJsonDocument document = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    return document.toJson(QJsonDocument::Compact);
}

/// What to put in the place of a value; undefined: leave it.
using Change = std::function<QJsonValue(const QJsonValue& value)>;
using Visit = std::function<void(const QJsonValue& changed, bool isInList)>;

/// The document again and again, each time with one of its values changed.
void eachChange(const QJsonValue& value, const Change& change, const Visit& visit) {
    if (value.isObject()) {
        auto object = value.toObject();
        for (const auto& name : object.keys())
            eachChange(value[name], change, [&](const QJsonValue& changed, bool isInList) {
                auto copy = object;
                copy[name] = changed;
                visit(copy, isInList);
            });
    }
    const auto array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i)
        eachChange(array[i], change, [&](const QJsonValue& changed, bool) {
            auto copy = array;
            copy[i] = changed;
            visit(copy, true);
        });
    if (const auto changed = change(value); !changed.isUndefined())
        visit(changed, false);
}

} // namespace
Q_DECLARE_METATYPE(AnswerReader)

class BadAnswersTest : public QObject {
    Q_OBJECT

    static void readers() {
        QTest::addColumn<AnswerReader>("reader");
        for (const auto& each : answerReaders())
            QTest::newRow(each.name.constData()) << each;
    }
    static QByteArray recorded(const AnswerReader& reader) {
        return contentOf(QStringLiteral(TEST_DATA "/") + reader.recorded);
    }

private Q_SLOTS:
    void nothingIsMadeOfNonsense_data() { readers(); }
    void nothingIsMadeOfNonsense() {
        QFETCH(const AnswerReader, reader);
        const QByteArray good = recorded(reader).trimmed();
        QVERIFY(reader.read({.status = 200, .body = good}).problem.isEmpty());
        QByteArrayList bad{"null", "7", R"("text")", "<!doctype html><title>Sign in</title>", "\xff\xfe\0{}"};
        bad.append(good.startsWith('[') ? "{}" : "[]");
        for (qsizetype length = 0; length < good.size(); ++length)
            bad.append(good.first(length));
        for (const auto& each : bad)
            QVERIFY2(!reader.read({.status = 200, .body = each}).problem.isEmpty(), each);
    }

    void aBadValueCostsItsItemAtMost_data() { readers(); }
    /// Nor does it become an address that a card would open.
    void aBadValueCostsItsItemAtMost() {
        QFETCH(const AnswerReader, reader);
        const auto good = parsed(recorded(reader).replace(R"("has_more": true)", R"("has_more": false)"));
        const auto whole = reader.read({.status = 200, .body = body(good)}).items;
        const bool isList = whole > 1 && reader.name != "forecast" && reader.name != "chart";
        for (const QJsonValue& other :
             {QJsonValue(), QJsonValue(true), QJsonValue(-1), QJsonValue(1.5), QJsonValue(1e300),
              QJsonValue(std::numeric_limits<qint64>::max()), QJsonValue(u""_s), QJsonValue(u"12"_s),
              QJsonValue(u"javascript:alert(1)"_s), QJsonValue(QJsonArray()), QJsonValue(QJsonObject())}) {
            eachChange(
                good, [&](const auto&) { return other; },
                [&](const QJsonValue& changed, bool isInList) {
                    const auto told = reader.read({.status = 200, .body = body(changed)});
                    const bool isNear = std::abs(told.items - whole) <= 2; // an order and its refund are two
                    if (isList && isInList)
                        QVERIFY2(told.problem == u"Bad date"_s || (told.problem.isEmpty() && isNear), body(changed));
                    for (const QUrl& address : told.addresses)
                        QVERIFY2(address.isEmpty() || address.scheme() == u"https"_s, body(changed));
                });
        }
        const auto many = QJsonArray::fromVariantList(QVariantList(100'000, QVariantMap()));
        const auto longer = [&](const QJsonValue& value) {
            return value.isArray() ? QJsonValue(many) : QJsonValue(QJsonValue::Undefined);
        };
        eachChange(good, longer, [&](const QJsonValue& changed, bool) {
            QVERIFY(reader.read({.status = 200, .body = body(changed)}).items <= whole);
        });
    }
};

QTEST_GUILESS_MAIN(BadAnswersTest)
#include "tst_BadAnswers.moc"
