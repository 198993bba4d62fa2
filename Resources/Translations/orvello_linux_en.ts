<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- The Linux edition's English: what the source texts say of a Mac, said of this desktop. A text that is not here stays
     as it is in the source. Another language is a file beside this one. -->
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>EditorPage</name>
    <message>
        <source>Shown in the prompter · autosaved locally, nothing leaves your Mac</source>
        <translation>Shown in the prompter · autosaved locally, nothing leaves your computer</translation>
    </message>
</context>
<context>
    <name>Orvello::LibraryViewModel</name>
    <message>
        <source>The deck was imported, but no slide has speaker notes. Add notes in PowerPoint&apos;s notes pane and re-import.</source>
        <translation>The deck was imported, but no slide has speaker notes. Add notes in your presentation program&apos;s notes pane and re-import.</translation>
    </message>
</context>
</TS>
