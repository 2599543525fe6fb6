#include "Control/Commands.h"
#include "Control/Duration.h"
#include "Control/Protocol.h"

#include <QtTest>

using namespace fendrel;
using namespace fendrel::control;
using namespace Qt::StringLiterals;

class CommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parses() {
        // "command|arguments|options", or "! error"
        const auto read = [](const char* typed) {
            const Parsed parsed = parse(QString::fromLatin1(typed).split(u' ', Qt::SkipEmptyParts));
            if (!parsed.request)
                return u"! "_s + parsed.error;
            const auto request = decodeRequest(encode(*parsed.request)).value(); // as it comes over the socket
            QStringList options;
            for (auto option = request.options.begin(); option != request.options.end(); ++option)
                options.append(option.key() + u'=' + option.value());
            return QStringList{request.command, request.arguments.join(u','), options.join(u',')}.join(u'|');
        };
        QCOMPARE(read("status"), u"status||"_s);
        QCOMPARE(read("switch building"), u"switch|building|"_s);
        QCOMPARE(read("focus start"), u"focus start||"_s);
        QCOMPARE(read("focus start --for 25m"), u"focus start||for=25m"_s);
        QCOMPARE(read("focus start --for=a=b"), u"focus start||for=a=b"_s);
        QCOMPARE(read("focus start --for 1m --for 2m"), u"focus start||for=2m"_s);
        QCOMPARE(read("settings set breakThrough -- --now"), u"settings set|breakThrough,--now|"_s);
        QCOMPARE(read("settings set modeModifiers -1"), u"settings set|modeModifiers,-1|"_s);
        QCOMPARE(read("onboarding finish a b c"), u"onboarding finish|a,b,c|"_s);
        QCOMPARE(read("activate dock"), u"activate|dock|"_s);
        QCOMPARE(read(""), u"! a command is missing; see fendrelctl --help"_s);
        QCOMPARE(read("dance"), u"! unknown command 'dance'; see fendrelctl --help"_s);
        QCOMPARE(read("focus"), u"! unknown command 'focus'; see fendrelctl --help"_s);
        QCOMPARE(read("switch a b"), u"! usage: fendrelctl switch MODE"_s);
        QCOMPARE(read("focus start 25m"), u"! usage: fendrelctl focus start [--for DURATION]"_s);
        QCOMPARE(read("focus start --for"), u"! --for needs a value"_s);
        QCOMPARE(read("focus start --until 3"), u"! focus start takes no option --until"_s);
    }

    void readsDurations() {
        const std::pair<const char*, int> durations[] = {{"90s", 90},     {"25m", 1500},    {"2h", 7200},
                                                         {"1h30m", 5400}, {"1h0m5s", 3605}, {"999h", 3'596'400}};
        for (const auto& [typed, seconds] : durations)
            QCOMPARE(parseDuration(QString::fromLatin1(typed)), Seconds(seconds));
        for (const char* typed : {"", "0s", "25", "m", "-5m", "1.5h", " 5m", "5m ", "30m1h", "1000h", "5M"})
            QVERIFY2(!parseDuration(QString::fromLatin1(typed)), typed);
    }
};

QTEST_APPLESS_MAIN(CommandsTest)
#include "tst_Commands.moc"
