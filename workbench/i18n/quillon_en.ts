<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Tour</name>
    <message numerus="yes">
        <source>%n picture(s) in %1</source>
        <translation>
            <numerusform>%n picture in %1</numerusform>
            <numerusform>%n pictures in %1</numerusform>
        </translation>
    </message>
</context>
</TS>
