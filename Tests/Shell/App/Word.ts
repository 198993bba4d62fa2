<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en">
<context>
    <name>TranslationTest</name>
    <message>
        <source>word</source>
        <translation>other word</translation>
    </message>
</context>
</TS>
