#include "Relay/Conversation.h"
#include "Table.h"

#include <QtTest>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

using namespace fendrel;
using namespace fendrel::relay;
using namespace std::chrono_literals;
using namespace std::string_literals;

namespace {

using Texts = std::vector<std::string>;

/// The text with ' in the place of ".
std::string json(std::string text) {
    std::ranges::replace(text, '\'', '"');
    return text;
}

const std::string hello = json("{'type':'hello','pids':[77]}");
const std::string connectedText = json("{'type':'connected'}");
const std::string lostText = json("{'type':'disconnected'}");
const std::string state = json("{'type':'state'}");
const std::string ask = json("{'type':'ask','tabId':1}");
constexpr Conversation::Moment noon{12h};

std::string tab(int id, std::size_t size = 0) {
    return json("{'type':'tab','tabId':" + std::to_string(id) + ",'title':'" + std::string(size, 'x') + "'}");
}

std::string native(const Texts& messages) {
    std::string stream;
    for (const std::string& message : messages)
        appendNativeMessage(stream, message);
    return stream;
}

/// What the browser has been told and did not take yet; it takes it.
Texts takeAsBrowser(Conversation& conversation) {
    Texts messages;
    NativeReader reader;
    while (!conversation.toBrowser().empty()) {
        const std::string_view piece = conversation.toBrowser().substr(0, 50'000);
        reader.feed(piece, [&](std::string_view message) { messages.emplace_back(message); });
        conversation.takenByBrowser(piece.size());
    }
    return reader.isBetweenMessages() ? messages : Texts{"cut off"};
}

Texts takeAsApplication(Conversation& conversation) {
    std::istringstream stream{std::string(conversation.toApplication())};
    conversation.takenByApplication(conversation.toApplication().size());
    Texts lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

Conversation connectedConversation() {
    Conversation conversation(77);
    conversation.connected();
    const bool isSound = conversation.fromApplication(state + "\n");
    takeAsBrowser(conversation);
    takeAsApplication(conversation);
    return isSound ? conversation : Conversation(0);
}

template<class Take>
void inPieces(const std::string& stream, std::size_t size, const Take& take) {
    for (std::size_t start = 0; start < stream.size(); start += size)
        take(std::string_view(stream).substr(start, size));
}

} // namespace

class ConversationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void passesTheSameHoweverTheStreamsAreCut() {
        const std::string noise = "{\0\xff\n\n}"s;
        const std::string fromBrowser =
            native({tab(1), "", json("{\n'type'\n:'ask'}\n"), "[]", "null", noise, "\xc3\xa4", ask, tab(2)});
        const Texts lines{tab(1), json("{ 'type' :'ask'} "), "{\0\xff  }"s, ask, tab(2)};
        const std::string fromApplication =
            "\n" + state + json("\n[]\nGET / HTTP/1.1\r\n{'a':'\xc3\xa4'}\r\n") + state + "\n{";
        const Texts messages{state, json("{'a':'\xc3\xa4'}\r"), state};
        for (std::size_t size = 1; size <= fromBrowser.size(); ++size) {
            Conversation conversation = connectedConversation();
            inPieces(fromBrowser, size, [&](std::string_view piece) { conversation.fromBrowser(piece); });
            inPieces(fromApplication, size,
                     [&](std::string_view piece) { QVERIFY(conversation.fromApplication(piece)); });
            QVERIFY2(takeAsApplication(conversation) == lines, qPrintable(QString::number(size)));
            QVERIFY2(takeAsBrowser(conversation) == messages, qPrintable(QString::number(size)));
            QVERIFY(conversation.isBetweenMessages());
        }
    }

    void passesOverWhatIsTooLong() {
        const std::string longest = tab(3, bridge::longestMessage - tab(3).size());
        const std::string lines = std::string(longest).append("\n").append(state).append("\n");
        const std::string tooLong = tab(4, bridge::longestMessage);
        for (const std::size_t size : {1UL, 4097UL, 10'000'000UL}) {
            Conversation conversation = connectedConversation();
            inPieces(native({longest, tooLong, ask}), size, [&](auto piece) { conversation.fromBrowser(piece); });
            QVERIFY((takeAsApplication(conversation) == Texts{longest, ask}));
            inPieces(lines, size, [&](auto piece) { QVERIFY(conversation.fromApplication(piece)); });
            QVERIFY((takeAsBrowser(conversation) == Texts{longest, state}));
        }
        Conversation conversation = connectedConversation();
        QVERIFY(conversation.fromApplication(tooLong + "\n" + state + "\n"));
        QVERIFY((takeAsBrowser(conversation) == Texts{state}));
        QVERIFY(!conversation.fromApplication(tooLong));
    }

    void knowsAMessageThatIsCutOff() {
        const std::string stream = native({ask});
        for (std::size_t size = 1; size < stream.size(); ++size) {
            Conversation conversation = connectedConversation();
            conversation.fromBrowser(std::string_view(stream).substr(0, size));
            QVERIFY2(!conversation.isBetweenMessages(), qPrintable(QString::number(size)));
        }
        Conversation conversation = connectedConversation();
        conversation.fromBrowser(native({ask, ""}));
        QVERIFY(conversation.isBetweenMessages());
    }

    void keepsTheLastTabForAnApplicationThatIsAway() {
        Conversation conversation(77);
        conversation.fromBrowser(native({tab(1), ask, tab(2), ask}));
        QCOMPARE(conversation.toApplication().size(), std::size_t(0));
        conversation.lost(noon);
        conversation.connected();
        QVERIFY((takeAsApplication(conversation) == Texts{hello, tab(2)}));
        conversation.fromBrowser(native({tab(3), ask}));
        conversation.takenByApplication(5);         // and then it is gone
        QVERIFY(conversation.fromApplication("{")); // its half line must not join the next one's
        conversation.lost(noon);
        QCOMPARE(conversation.toApplication().size(), std::size_t(0));
        conversation.connected();
        QVERIFY((takeAsApplication(conversation) == Texts{hello, tab(3)}));
        takeAsBrowser(conversation);
        QVERIFY(conversation.fromApplication(state + "\n"));
        QVERIFY((takeAsBrowser(conversation) == Texts{connectedText, state}));
    }

    void tellsWhetherTheApplicationIsThere() {
        Conversation conversation(77);
        QVERIFY(takeAsBrowser(conversation).empty());
        const auto lose = [&] { conversation.lost(noon); };
        lose();
        lose();
        QVERIFY((takeAsBrowser(conversation) == Texts{lostText}));
        conversation.connected();
        QVERIFY(takeAsBrowser(conversation).empty()); // it may hang
        QVERIFY(conversation.fromApplication(state + "\n"));
        lose();
        lose();
        QVERIFY((takeAsBrowser(conversation) == Texts{connectedText, state, lostText}));

        // A browser that does not read is told what came of it, and of the loss in any case: something may be veiled.
        for (const bool isBack : {true, false}) {
            conversation.connected();
            const std::string big = tab(1, 100'000);
            QVERIFY(conversation.fromApplication(big + "\n"));
            for (int round = 0; round < 1000; ++round) {
                lose();
                conversation.connected();
                lose();
                lose();
            }
            if (isBack)
                conversation.connected();
            QVERIFY((takeAsBrowser(conversation) == Texts{connectedText, big, lostText}));
            QVERIFY(conversation.fromApplication(isBack ? state + "\n" : "{"));
            QVERIFY(takeAsBrowser(conversation) == (isBack ? Texts{connectedText, state} : Texts{}));
            lose();
            takeAsBrowser(conversation);
        }
    }

    void redialsWithGrowingPauses() {
        Conversation conversation(77);
        QVERIFY(*conversation.dialAt() <= noon); // the first time at once
        const auto pause = [&] {
            conversation.lost(noon);
            return static_cast<int>((*conversation.dialAt() - noon) / 1ms);
        };
        for (const int expected : {50, 100, 200, 400, 800, 1000, 1000})
            QCOMPARE(pause(), expected);
        conversation.connected();
        QVERIFY(!conversation.dialAt());
        QCOMPARE(pause(), 1000); // it said nothing
        conversation.connected();
        QVERIFY(conversation.fromApplication(state + "\n"));
        QCOMPARE(pause(), 50);
        conversation.giveUp();
        QVERIFY(!conversation.dialAt());
    }

    void boundsWhatWaitsForTheApplication() {
        Conversation conversation = connectedConversation();
        for (int id = 0; id < 10'000; ++id)
            conversation.fromBrowser(native({tab(id, 100)}));
        QVERIFY(conversation.wantsBrowser());
        conversation.fromBrowser(native({ask, tab(-1), tab(-2)}));
        const Texts all = takeAsApplication(conversation);
        for (int id = 0; id < 400; ++id) // while it was not behind
            QCOMPARE(all[static_cast<std::size_t>(id)], tab(id, 100));
        QVERIFY(all.size() < 1000);
        // Between the others the order stays.
        QVERIFY((Texts(all.end() - 3, all.end()) == Texts{tab(9'999, 100), ask, tab(-2)}));

        // The beginning of this one is on its way already.
        conversation.fromBrowser(native({tab(1, 100'000)}));
        std::string begun(conversation.toApplication().substr(0, 10));
        conversation.takenByApplication(begun.size());
        conversation.fromBrowser(native({tab(2), tab(3)}));
        QCOMPARE(begun.append(conversation.toApplication()), tab(1, 100'000) + "\n" + tab(3) + "\n");

        const std::string big = json("{'type':'closed','more':'" + std::string(100'000, 'x') + "'}");
        for (int count = 0; count < 10; ++count)
            conversation.fromBrowser(native({big}));
        QVERIFY(!conversation.wantsBrowser());
        takeAsApplication(conversation);
        QVERIFY(conversation.wantsBrowser());
    }

    void boundsWhatWaitsForTheBrowser() {
        Conversation conversation = connectedConversation();
        int sent = 0;
        for (; sent < 100'000 && conversation.wantsApplication(); ++sent)
            QVERIFY(conversation.fromApplication(state + "\n"));
        QVERIFY(sent < 10'000);
        conversation.takenByBrowser(20'000);
        QVERIFY(conversation.wantsApplication());
    }
};

QTEST_APPLESS_MAIN(ConversationTest)
#include "tst_Conversation.moc"
