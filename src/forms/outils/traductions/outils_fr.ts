<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="fr_FR">
<context>
    <name>ListesPubliques</name>
    <message numerus="yes">
        <source>%n équipe(s) inscrite(s)</source>
        <translation>
            <numerusform>%n équipe inscrite</numerusform>
            <numerusform>%n équipes inscrites</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>, manque %n résultat(s)</source>
        <translation>
            <numerusform>, manque %n résultat</numerusform>
            <numerusform>, manque %n résultats</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MotsCopies</name>
    <message numerus="yes">
        <source>%n concours de plus</source>
        <translation>
            <numerusform>%n concours de plus</numerusform>
            <numerusform>%n concours de plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours de moins</source>
        <translation>
            <numerusform>%n concours de moins</numerusform>
            <numerusform>%n concours de moins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de plus</source>
        <translation>
            <numerusform>%n équipe de plus</numerusform>
            <numerusform>%n équipes de plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de moins</source>
        <translation>
            <numerusform>%n équipe de moins</numerusform>
            <numerusform>%n équipes de moins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de plus</source>
        <translation>
            <numerusform>%n résultat de plus</numerusform>
            <numerusform>%n résultats de plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de moins</source>
        <translation>
            <numerusform>%n résultat de moins</numerusform>
            <numerusform>%n résultats de moins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de plus</source>
        <translation>
            <numerusform>%n joueur connu de plus</numerusform>
            <numerusform>%n joueurs connus de plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de moins</source>
        <translation>
            <numerusform>%n joueur connu de moins</numerusform>
            <numerusform>%n joueurs connus de moins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de plus</source>
        <translation>
            <numerusform>%n club de plus</numerusform>
            <numerusform>%n clubs de plus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de moins</source>
        <translation>
            <numerusform>%n club de moins</numerusform>
            <numerusform>%n clubs de moins</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n concours</numerusform>
            <numerusform>%n concours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n équipe</numerusform>
            <numerusform>%n équipes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s)</source>
        <translation>
            <numerusform>%n résultat</numerusform>
            <numerusform>%n résultats</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MotsSaison</name>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n concours</numerusform>
            <numerusform>%n concours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n équipe</numerusform>
            <numerusform>%n équipes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n partie(s)</source>
        <translation>
            <numerusform>%n partie</numerusform>
            <numerusform>%n parties</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s)</source>
        <translation>
            <numerusform>%n club</numerusform>
            <numerusform>%n clubs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licence(s)</source>
        <translation>
            <numerusform>%n licence</numerusform>
            <numerusform>%n licences</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RapportTirage</name>
    <message numerus="yes">
        <source>%n rencontre(s) déjà jouée(s)</source>
        <translation>
            <numerusform>%n rencontre déjà jouée</numerusform>
            <numerusform>%n rencontres déjà jouées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) d&apos;un même club</source>
        <translation>
            <numerusform>%n rencontre d&apos;un même club</numerusform>
            <numerusform>%n rencontres d&apos;un même club</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Le meilleur de %n tirage(s) : %1.</source>
        <translation>
            <numerusform>Le meilleur de %n tirage : %1.</numerusform>
            <numerusform>Le meilleur de %n tirages : %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
