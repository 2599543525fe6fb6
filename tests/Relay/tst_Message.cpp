#include "Relay/Message.h"
#include "Table.h"

#include <QtTest>

using namespace fendrel;
using namespace fendrel::relay;

class MessageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knowsAnObjectByItsOutline_data() {
        const Table<QByteArray, bool> row("text", "isObject");
        row("empty", "", false);
        row("blanks", " \t\r\n", false);
        row("smallest", "{}", true);
        row("blanks around", "\r\n {\"a\":1}\t ", true);
        row("half", "{", false);
        row("list", "[{}]", false);
        row("cut off", "{\"type\":\"tab\"", false);
        row("two texts", "{} null", false);
        row("string", "\"{}\"", false);
    }
    void knowsAnObjectByItsOutline() {
        QFETCH(QByteArray, text);
        QTEST(isObject(text.toStdString()), "isObject");
    }

    void findsTheTypeOfTheMessageItself_data() {
        const Table<QByteArray, QByteArray> row("message", "type"); // ' stands for "
        row("alone", "{'type':'tab'}", "tab");
        row("first", "{'type':'tab','tabId':1}", "tab");
        row("last, with blanks", "{ 'tabId' : 1 ,\n\t'type' :\r\n 'ask' }", "ask");
        row("none", "{'tabId':1}", "");
        row("in a title", "{'title':'\\'type\\':\\'tab\\'','type':'ask'}", "ask");
        row("title that ends in a backslash", "{'title':'\\\\','type':'ask','url':'\\',\\'type\\':\\'tab\\''}", "ask");
        row("title with brackets", "{'title':']}]}','type':'ask'}", "ask");
        row("in an object", "{'more':{'type':'tab'},'type':'ask'}", "ask");
        row("in an object behind", "{'type':'ask','more':{'type':'tab'}}", "ask");
        row("in objects of a list", "{'more':[{'type':'tab'},['type',{'type':'tab'}]]}", "");
        row("as a value", "{'title':'type','tab':'tab'}", "");
        row("number", "{'type':5}", "");
        row("list", "{'type':['tab']}", "");
        row("object", "{'type':{'type':'tab'}}", "");
        row("twice", "{'type':'tab','type':'ask'}", "ask");
        row("twice, not a string", "{'type':'tab','type':null}", "");
        row("another key", "{'Type':'tab','types':'tab','\\type':'tab'}", "");
        row("empty key", "{'':'tab'}", "");
        row("escaped", "{'type':'t\\'ab'}", "t\\\"ab");
        row("string without end", "{'type':'tab}}", "tab}}");
        row("brackets that do not match", "}{]['type':'tab'}}", "");
        row("no object", "'type':'tab'", "");
    }
    void findsTheTypeOfTheMessageItself() {
        QFETCH(QByteArray, message);
        const std::string text = message.replace('\'', '"').toStdString();
        QTEST(QByteArray::fromStdString(std::string(typeOf(text))), "type");
    }
};

QTEST_APPLESS_MAIN(MessageTest)
#include "tst_Message.moc"
