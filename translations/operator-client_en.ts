<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>OperatorClient::AlarmPage</name>
    <message numerus="yes">
        <source>%Ln alarm(s)</source>
        <translation>
            <numerusform>%Ln alarm</numerusform>
            <numerusform>%Ln alarms</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln alarm(s)</source>
        <translation>
            <numerusform>%1 of %Ln alarm</numerusform>
            <numerusform>%1 of %Ln alarms</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln alarm(s) imported.</source>
        <translation>
            <numerusform>%Ln alarm imported.</numerusform>
            <numerusform>%Ln alarms imported.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln row(s) left out.</source>
        <translation>
            <numerusform>%Ln row left out.</numerusform>
            <numerusform>%Ln rows left out.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OperatorClient::CameraWall</name>
    <message numerus="yes">
        <source>Screen %1: %n window(s) closed</source>
        <translation>
            <numerusform>Screen %1: %n window closed</numerusform>
            <numerusform>Screen %1: %n windows closed</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OperatorClient::WallPage</name>
    <message numerus="yes">
        <source>%n screen(s) added</source>
        <translation>
            <numerusform>%n screen added</numerusform>
            <numerusform>%n screens added</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OperatorClient::WindowDetails</name>
    <message numerus="yes">
        <source>%n window(s) selected</source>
        <translation>
            <numerusform>%n window selected</numerusform>
            <numerusform>%n windows selected</numerusform>
        </translation>
    </message>
</context>
</TS>
