<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>PackageInstallation</name>
    <message numerus="yes">
        <source>The deck &apos;%1&apos; claims %n cards, but the package holds %2 of them.</source>
        <translation>
            <numerusform>The deck &apos;%1&apos; claims %n card, but the package holds %2 of them.</numerusform>
            <numerusform>The deck &apos;%1&apos; claims %n cards, but the package holds %2 of them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>frmJournal</name>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entry</numerusform>
            <numerusform>%Ln entries</numerusform>
        </translation>
    </message>
</context>
</TS>
