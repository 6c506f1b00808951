<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="fr_FR">
<context>
    <name>MenuOutils</name>
    <message>
        <source>&amp;Outils</source>
        <translation>&amp;Extra</translation>
    </message>
</context>
</TS>
