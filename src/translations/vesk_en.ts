<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>NoteSummary</name>
    <message numerus="yes">
        <source>+ %Ln more</source>
        <translation>
            <numerusform>+ %Ln more</numerusform>
            <numerusform>+ %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SectionHeader</name>
    <message numerus="yes">
        <source>%Ln items</source>
        <translation>
            <numerusform>%Ln item</numerusform>
            <numerusform>%Ln items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vesk::CommandKeys</name>
    <message numerus="yes">
        <source>%n Key(s) Taken by %1…</source>
        <translation>
            <numerusform>%n Key Taken by %1…</numerusform>
            <numerusform>%n Keys Taken by %1…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n Key(s) Taken…</source>
        <translation>
            <numerusform>%n Key Taken…</numerusform>
            <numerusform>%n Keys Taken…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vesk::SaveProblem</name>
    <message numerus="yes">
        <source>%Ln notes or prompts cannot be saved (%1). All others are saved.</source>
        <translation>
            <numerusform>One note or prompt cannot be saved (%1). All others are saved.</numerusform>
            <numerusform>%Ln notes or prompts cannot be saved (%1). All others are saved.</numerusform>
        </translation>
    </message>
</context>
</TS>
