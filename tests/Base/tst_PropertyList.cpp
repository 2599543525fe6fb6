#include "Base/PropertyList.h"

#include <QDateTime>
#include <QTest>

using namespace fendrel;
using namespace Qt::StringLiterals;

class TestPropertyList : public QObject {
    Q_OBJECT

    /// Arrays that hold the next one twice: a few bytes that stand for 2^levels.
    static QByteArray shared(int levels) {
        QByteArray list("bplist00");
        QByteArray offsets;
        for (int level = 0; level < levels; ++level) {
            offsets.append(static_cast<char>(list.size()));
            const char next = static_cast<char>(level + 1);
            list += QByteArray("\xa2") + next + next;
        }
        offsets.append(static_cast<char>(list.size()));
        list += "\x50"; // an empty string
        const auto table = static_cast<char>(list.size());
        list += offsets + QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') + static_cast<char>(levels + 1) +
                QByteArray(8, '\0') + QByteArray(7, '\0') + table;
        return list;
    }

private Q_SLOTS:
    void whatIsWrittenIsRead() {
        const QVariantMap value{
            {u"text"_s, u"Ünï 🙂"_s},
            {u"long"_s, QString(300, u'x')},
            {u"data"_s, QByteArray("\0\x01", 2)},
            {u"yes"_s, true},
            {u"number"_s, qint64{-5}},
            {u"real"_s, 1.5},
            {u"date"_s, QDateTime::fromMSecsSinceEpoch(1'700'000'000'500, Qt::UTC)},
            {u"list"_s, QVariantList{u"a"_s, QVariantMap{{u"b"_s, false}}, QVariant()}},
        };
        QCOMPARE(propertyList::read(propertyList::write(value)), std::optional<QVariant>(value));
    }

    void readsWhatOthersWrite() {
        // Python's plistlib, with the smallest sizes that do
        const QByteArray list = QByteArray::fromHex(
            "62706c6973743030d301020304090a537265715166546e6f6e65d205060708547469746c516e63005a006f00eb11012c23400400"
            "0000000000a20b0c094101080f13151a1f24262d30393c3d0000000000000101000000000000000d0000000000000000000000"
            "000000003f");
        const QVariantMap value{{u"req"_s, QVariantMap{{u"titl"_s, u"Zoë"_s}, {u"n"_s, qint64{300}}}},
                                {u"f"_s, 2.5},
                                {u"none"_s, QVariantList{true, QByteArray("\x01")}}};
        QCOMPARE(propertyList::read(list), std::optional<QVariant>(value));
    }

    void boundsHold() {
        QVERIFY(propertyList::read(shared(5)));
        QVERIFY(!propertyList::read(shared(40))); // deeper than allowed
        QVERIFY(!propertyList::read(shared(25))); // more objects than allowed
        const QByteArray list = propertyList::write(QVariantMap{{u"a"_s, QString(100, u'x')}});
        QVERIFY(propertyList::read(list));
        QVERIFY(!propertyList::read(list, {.bytes = list.size() - 1}));
        for (qsizetype size = 0; size < list.size(); ++size)
            QVERIFY(!propertyList::read(list.first(size)));
    }
};

QTEST_APPLESS_MAIN(TestPropertyList)
#include "tst_PropertyList.moc"
