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
    void parses_data();
    void parses();
    void readsDurations_data();
    void readsDurations();
};

void CommandsTest::parses_data() {
    QTest::addColumn<QString>("expected"); // "command|arguments|options", or "! error"
    const auto row = [](const char* typed, const char* expected) {
        QTest::newRow(typed) << QString::fromLatin1(expected);
    };
    row("status", "status||");
    row("switch building", "switch|building|");
    row("focus start", "focus start||");
    row("focus start --for 25m", "focus start||for=25m");
    row("focus start --for=25m", "focus start||for=25m");
    row("focus start --for=a=b", "focus start||for=a=b");
    row("focus start --for 1m --for 2m", "focus start||for=2m");
    row("settings set breakThrough -- --now", "settings set|breakThrough,--now|");
    row("settings set modeModifiers -1", "settings set|modeModifiers,-1|");
    row("onboarding finish", "onboarding finish||");
    row("onboarding finish a b c", "onboarding finish|a,b,c|");
    row("activate", "activate||");
    row("activate dock", "activate|dock|");
    row("", "! a command is missing; see fendrelctl --help");
    row("dance", "! unknown command 'dance'; see fendrelctl --help");
    row("focus", "! unknown command 'focus'; see fendrelctl --help");
    row("focus pause", "! unknown command 'focus pause'; see fendrelctl --help");
    row("Status", "! unknown command 'Status'; see fendrelctl --help");
    row("switch", "! usage: fendrelctl switch MODE");
    row("switch a b", "! usage: fendrelctl switch MODE");
    row("focus start 25m", "! usage: fendrelctl focus start [--for DURATION]");
    row("activate a b", "! usage: fendrelctl activate [PANE]");
    row("focus start --for", "! --for needs a value");
    row("focus start --until 3", "! focus start takes no option --until");
    row("status --for 3", "! status takes no option --for");
}

void CommandsTest::parses() {
    const Parsed parsed = parse(QString::fromLatin1(QTest::currentDataTag()).split(u' ', Qt::SkipEmptyParts));
    QString shown = u"! "_s + parsed.error;
    if (const auto& request = parsed.request) {
        QStringList options;
        for (auto option = request->options.begin(); option != request->options.end(); ++option)
            options.append(option.key() + u'=' + option.value());
        shown = QStringList{request->command, request->arguments.join(u','), options.join(u',')}.join(u'|');
        const auto again = decodeRequest(encode(*request)); // over the socket
        QVERIFY(again && again->command == request->command && again->arguments == request->arguments &&
                again->options == request->options);
    }
    QTEST(shown, "expected");
}

void CommandsTest::readsDurations_data() {
    QTest::addColumn<std::optional<Seconds>>("expected");
    const std::pair<const char*, int> rows[] = {{"90s", 90},     {"25m", 1500},    {"2h", 7200},
                                                {"1h30m", 5400}, {"1h0m5s", 3605}, {"999h", 3'596'400}};
    for (const auto& [typed, seconds] : rows)
        QTest::newRow(typed) << std::optional(Seconds(seconds));
    for (const char* typed : {"", "0s", "25", "m", "-5m", "1.5h", " 5m", "5m ", "30m1h", "1000h", "5M"})
        QTest::newRow(typed) << std::optional<Seconds>();
}

void CommandsTest::readsDurations() {
    QFETCH(const std::optional<Seconds>, expected);
    QVERIFY(parseDuration(QString::fromLatin1(QTest::currentDataTag())) == expected);
}

QTEST_APPLESS_MAIN(CommandsTest)
#include "tst_Commands.moc"
