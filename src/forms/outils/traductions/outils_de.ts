<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="fr_FR">
<context>
    <name>MenuOutils</name>
    <message>
        <source>&amp;Outils</source>
        <translation>&amp;Extras</translation>
    </message>
</context>
</TS>
