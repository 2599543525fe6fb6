<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AnswersPage</name>
    <message numerus="yes">
        <source>%n answer(s)</source>
        <translation>
            <numerusform>%n answer</numerusform>
            <numerusform>%n answers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Card</name>
    <message numerus="yes">
        <source>%n sale(s)</source>
        <translation>
            <numerusform>%n sale</numerusform>
            <numerusform>%n sales</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>review(s) waiting</source>
        <translation>
            <numerusform>review waiting</numerusform>
            <numerusform>reviews waiting</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of your own</source>
        <translation>
            <numerusform>%n of your own</numerusform>
            <numerusform>%n of your own</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n assigned</source>
        <translation>
            <numerusform>%n assigned</numerusform>
            <numerusform>%n assigned</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n event</numerusform>
            <numerusform>%n events</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n user(s)</source>
        <translation>
            <numerusform>%n user</numerusform>
            <numerusform>%n users</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>error(s) in 24 hours</source>
        <translation>
            <numerusform>error in 24 hours</numerusform>
            <numerusform>errors in 24 hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>review(s)</source>
        <translation>
            <numerusform>review</numerusform>
            <numerusform>reviews</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n overdue</source>
        <translation>
            <numerusform>%n overdue</numerusform>
            <numerusform>%n overdue</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>error(s)</source>
        <translation>
            <numerusform>error</numerusform>
            <numerusform>errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reply(ies)</source>
        <translation>
            <numerusform>%n reply</numerusform>
            <numerusform>%n replies</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Context</name>
    <message numerus="yes">
        <source>%n application(s)</source>
        <translation>
            <numerusform>%n application</numerusform>
            <numerusform>%n applications</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s)</source>
        <translation>
            <numerusform>%n document</numerusform>
            <numerusform>%n documents</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModePill</name>
    <message numerus="yes">
        <source>%n held message(s)</source>
        <translation>
            <numerusform>%n held message</numerusform>
            <numerusform>%n held messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ModesPane</name>
    <message numerus="yes">
        <source>%n application(s)</source>
        <translation>
            <numerusform>%n application</numerusform>
            <numerusform>%n applications</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n web site(s)</source>
        <translation>
            <numerusform>%n web site</numerusform>
            <numerusform>%n web sites</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fendrel::DataController</name>
    <message numerus="yes">
        <source>%n mode(s)</source>
        <translation>
            <numerusform>%n mode</numerusform>
            <numerusform>%n modes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s)</source>
        <translation>
            <numerusform>%n setting</numerusform>
            <numerusform>%n settings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n learned answer(s)</source>
        <translation>
            <numerusform>%n learned answer</numerusform>
            <numerusform>%n learned answers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entry(ies) can&apos;t be read and stay(s) out.</source>
        <translation>
            <numerusform>%n entry can&apos;t be read and stays out.</numerusform>
            <numerusform>%n entries can&apos;t be read and stay out.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fendrel::MessagesController</name>
    <message numerus="yes">
        <source>%n message(s)</source>
        <translation>
            <numerusform>%n message</numerusform>
            <numerusform>%n messages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fendrel::ModeEditor</name>
    <message numerus="yes">
        <source>%n of them are on the list already.</source>
        <translation>
            <numerusform>%n of them is on the list already.</numerusform>
            <numerusform>%n of them are on the list already.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fendrel::ModeSuggestions</name>
    <message numerus="yes">
        <source>%1 starts in %n min.</source>
        <translation>
            <numerusform>%1 starts in %n min.</numerusform>
            <numerusform>%1 starts in %n min.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fendrel::NoticeController</name>
    <message numerus="yes">
        <source>Couldn&apos;t find %n document(s) any more.</source>
        <translation>
            <numerusform>Couldn&apos;t find %n document any more.</numerusform>
            <numerusform>Couldn&apos;t find %n documents any more.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fendrel::WidgetSubjects</name>
    <message numerus="yes">
        <source>Only the first %n are kept.</source>
        <translation>
            <numerusform>Only the first is kept.</numerusform>
            <numerusform>Only the first %n are kept.</numerusform>
        </translation>
    </message>
</context>
</TS>
