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
</TS>
