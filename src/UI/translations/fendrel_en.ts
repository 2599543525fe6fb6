<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>FirstRunView</name>
    <message numerus="yes">
        <source>%n mode(s) chosen</source>
        <translation><numerusform>%n mode chosen</numerusform><numerusform>%n modes chosen</numerusform></translation>
    </message>
</context>
<context>
    <name>ModePill</name>
    <message numerus="yes">
        <source>%n held message(s)</source>
        <translation><numerusform>%n held message</numerusform><numerusform>%n held messages</numerusform></translation>
    </message>
</context>
<context>
    <name>fendrel::MessagesController</name>
    <message numerus="yes">
        <source>%n message(s)</source>
        <translation><numerusform>%n message</numerusform><numerusform>%n messages</numerusform></translation>
    </message>
</context>
</TS>
