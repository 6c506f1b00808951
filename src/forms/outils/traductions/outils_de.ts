<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="fr_FR">
<context>
    <name>AffichagePublic</name>
    <message>
        <source>Affichage public</source>
        <translation>Öffentliche Anzeige</translation>
    </message>
    <message>
        <source>Pages qui tournent</source>
        <translation>Wechselnde Seiten</translation>
    </message>
    <message>
        <source>Tirage du tour</source>
        <translation>Auslosung der Runde</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Erwartete Begegnungen</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Letzte Ergebnisse</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Rangliste</translation>
    </message>
    <message>
        <source>Horloge, chronomètre et alarme</source>
        <translation>Uhr, Stoppuhr und Wecker</translation>
    </message>
    <message>
        <source>Durée d&apos;une page</source>
        <translation>Dauer einer Seite</translation>
    </message>
    <message>
        <source> secondes</source>
        <translation> Sekunden</translation>
    </message>
    <message>
        <source>Durée d&apos;une page, en secondes</source>
        <translation>Dauer einer Seite in Sekunden</translation>
    </message>
    <message>
        <source>Ecran</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Plein écran (F11)</source>
        <translation>Vollbild (F11)</translation>
    </message>
    <message>
        <source>Fond sombre</source>
        <translation>Dunkler Grund</translation>
    </message>
    <message>
        <source>Afficher</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Pause (F12)</source>
        <translation>Pause (F12)</translation>
    </message>
    <message>
        <source>Page suivante</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Ecran %1</source>
        <translation>Bildschirm %1</translation>
    </message>
    <message>
        <source>L&apos;affichage tourne seul sur l&apos;autre écran pendant que vous travaillez ici.</source>
        <translation>Die Anzeige läuft von selbst auf dem anderen Bildschirm, während Sie hier arbeiten.</translation>
    </message>
    <message>
        <source>Un seul écran est branché : l&apos;affichage s&apos;ouvre dans une fenêtre ordinaire.</source>
        <translation>Nur ein Bildschirm ist angeschlossen: Die Anzeige öffnet sich in einem gewöhnlichen Fenster.</translation>
    </message>
    <message>
        <source>Cacher</source>
        <translation>Verbergen</translation>
    </message>
</context>
<context>
    <name>CopiesSecurite</name>
    <message>
        <source>Copies de sécurité</source>
        <translation>Sicherungskopien</translation>
    </message>
    <message>
        <source>Concours de la copie choisie</source>
        <translation>Wettbewerbe der gewählten Kopie</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Copier maintenant</source>
        <translation>Jetzt kopieren</translation>
    </message>
    <message>
        <source>Copier vers...</source>
        <translation>Kopieren nach...</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Par rapport à la base</source>
        <translation>Gegenüber der Datei in Gebrauch</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Wettbewerbe</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Mannschaften</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Runden</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Base en service : %1.</source>
        <translation>Datei in Gebrauch: %1.</translation>
    </message>
    <message>
        <source>lecture en cours</source>
        <translation>wird gelesen</translation>
    </message>
    <message>
        <source>copie illisible</source>
        <translation>Kopie nicht lesbar</translation>
    </message>
    <message>
        <source>identique</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>mêmes nombres, contenu différent</source>
        <translation>gleiche Zahlen, anderer Inhalt</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite : %1</source>
        <translation>Die Kopie konnte nicht gemacht werden: %1</translation>
    </message>
    <message>
        <source>La dernière copie contient déjà tout : %1.</source>
        <translation>Die letzte Kopie enthält schon alles: %1.</translation>
    </message>
    <message>
        <source>Copie faite : %1.</source>
        <translation>Kopie gemacht: %1.</translation>
    </message>
    <message>
        <source>Copier la base vers</source>
        <translation>Datei kopieren nach</translation>
    </message>
    <message>
        <source>La copie %1 est écrite, relue et complète.</source>
        <translation>Die Kopie %1 ist geschrieben, zurückgelesen und vollständig.</translation>
    </message>
    <message>
        <source>%1 est la base en service : choisissez un autre nom.</source>
        <translation>%1 ist die Datei in Gebrauch: wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Ce qui a été écrit dans %1 ne se relit pas : rien n&apos;y est resté. Essayez un autre support.</source>
        <translation>Was nach %1 geschrieben wurde, lässt sich nicht zurücklesen: nichts davon ist geblieben. Versuchen Sie einen anderen Datenträger.</translation>
    </message>
    <message>
        <source>La copie %1 n&apos;a pas pu être écrite : regardez la place et les droits.</source>
        <translation>Die Kopie %1 konnte nicht geschrieben werden: prüfen Sie Platz und Rechte.</translation>
    </message>
    <message>
        <source>Restaurer la copie du %1 ?</source>
        <translation>Die Kopie vom %1 wiederherstellen?</translation>
    </message>
    <message>
        <source>Elle contient %1.</source>
        <translation>Sie enthält %1.</translation>
    </message>
    <message>
        <source>Par rapport à la base : %1.</source>
        <translation>Gegenüber der Datei in Gebrauch: %1.</translation>
    </message>
    <message>
        <source>Une copie de la base actuelle est faite d&apos;abord : la restaurer à son tour annule ce geste.</source>
        <translation>Zuerst wird die jetzige Datei kopiert: wird diese Kopie wiederhergestellt, ist alles wie zuvor.</translation>
    </message>
    <message>
        <source>La copie du %1 est en place.</source>
        <translation>Die Kopie vom %1 ist eingesetzt.</translation>
    </message>
    <message>
        <source>La base d&apos;avant est dans la copie %1.</source>
        <translation>Die Datei von vorher ist in der Kopie %1.</translation>
    </message>
</context>
<context>
    <name>FormeSaison</name>
    <message>
        <source>Clubs</source>
        <translation>Vereine</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Wettbewerbe</translation>
    </message>
    <message>
        <source>tous</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Saison du %1 au %2</source>
        <translation>Saison vom %1 bis %2</translation>
    </message>
    <message>
        <source>Exporter la liste</source>
        <translation>Liste exportieren</translation>
    </message>
    <message>
        <source>La liste est dans %1.</source>
        <translation>Die Liste ist in %1.</translation>
    </message>
    <message>
        <source>La liste n&apos;a pas pu être écrite : %1</source>
        <translation>Die Liste konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>Concours comptés</source>
        <translation>Wettbewerbe gezählt</translation>
    </message>
</context>
<context>
    <name>ListesPubliques</name>
    <message>
        <source>Tirage du tour %1</source>
        <translation>Auslosung der Runde %1</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Erwartete Begegnungen</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Letzte Ergebnisse</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Rangliste</translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) inscrite(s)</source>
        <translation>
            <numerusform>%n Mannschaft eingeschrieben</numerusform>
            <numerusform>%n Mannschaften eingeschrieben</numerusform>
        </translation>
    </message>
    <message>
        <source>Concours terminé</source>
        <translation>Wettbewerb beendet</translation>
    </message>
    <message>
        <source>Tour %1 / %2</source>
        <translation>Runde %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>, manque %n résultat(s)</source>
        <translation>
            <numerusform>, %n Ergebnis fehlt</numerusform>
            <numerusform>, %n Ergebnisse fehlen</numerusform>
        </translation>
    </message>
    <message>
        <source>, complet</source>
        <translation>, vollständig</translation>
    </message>
    <message>
        <source>Dernier résultat : %1 bat %2</source>
        <translation>Letztes Ergebnis: %1 schlägt %2</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>spielfrei</translation>
    </message>
    <message>
        <source>Lancées</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Pas encore lancées</source>
        <translation>Noch nicht begonnen</translation>
    </message>
    <message>
        <source>Equ.</source>
        <translation>Mann.</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Verein</translation>
    </message>
    <message>
        <source>V</source>
        <translation>S</translation>
    </message>
    <message>
        <source>+/−</source>
        <translation>+/−</translation>
    </message>
</context>
<context>
    <name>MenuOutils</name>
    <message>
        <source>&amp;Outils</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Copies de sécurité</source>
        <translation>Si&amp;cherungskopien</translation>
    </message>
    <message>
        <source>&amp;Rapport du tirage</source>
        <translation>Be&amp;richt der Auslosung</translation>
    </message>
    <message>
        <source>&amp;Affichage public</source>
        <translation>Öffentliche &amp;Anzeige</translation>
    </message>
    <message>
        <source>&amp;Saison</source>
        <translation>&amp;Saison</translation>
    </message>
</context>
<context>
    <name>ModeleSaison</name>
    <message>
        <source>Meilleure place</source>
        <translation>Bester Platz</translation>
    </message>
</context>
<context>
    <name>MotsCopies</name>
    <message>
        <source>inconnue</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>départ du programme</source>
        <translation>Programmstart</translation>
    </message>
    <message>
        <source>remise à zéro</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>suppression</source>
        <translation>Löschung</translation>
    </message>
    <message>
        <source>nouveau tirage</source>
        <translation>neue Auslosung</translation>
    </message>
    <message>
        <source>annulation</source>
        <translation>Rücknahme</translation>
    </message>
    <message>
        <source>restauration</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>à la demande</source>
        <translation>auf Wunsch</translation>
    </message>
    <message>
        <source>fichier disparu ou changé</source>
        <translation>Datei verschwunden oder geändert</translation>
    </message>
    <message numerus="yes">
        <source>%n concours de plus</source>
        <translation>
            <numerusform>%n Wettbewerb mehr</numerusform>
            <numerusform>%n Wettbewerbe mehr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours de moins</source>
        <translation>
            <numerusform>%n Wettbewerb weniger</numerusform>
            <numerusform>%n Wettbewerbe weniger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de plus</source>
        <translation>
            <numerusform>%n Mannschaft mehr</numerusform>
            <numerusform>%n Mannschaften mehr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de moins</source>
        <translation>
            <numerusform>%n Mannschaft weniger</numerusform>
            <numerusform>%n Mannschaften weniger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de plus</source>
        <translation>
            <numerusform>%n Ergebnis mehr</numerusform>
            <numerusform>%n Ergebnisse mehr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de moins</source>
        <translation>
            <numerusform>%n Ergebnis weniger</numerusform>
            <numerusform>%n Ergebnisse weniger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de plus</source>
        <translation>
            <numerusform>%n bekannter Spieler mehr</numerusform>
            <numerusform>%n bekannte Spieler mehr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de moins</source>
        <translation>
            <numerusform>%n bekannter Spieler weniger</numerusform>
            <numerusform>%n bekannte Spieler weniger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de plus</source>
        <translation>
            <numerusform>%n Verein mehr</numerusform>
            <numerusform>%n Vereine mehr</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de moins</source>
        <translation>
            <numerusform>%n Verein weniger</numerusform>
            <numerusform>%n Vereine weniger</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n Wettbewerb</numerusform>
            <numerusform>%n Wettbewerbe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n Mannschaft</numerusform>
            <numerusform>%n Mannschaften</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s)</source>
        <translation>
            <numerusform>%n Ergebnis</numerusform>
            <numerusform>%n Ergebnisse</numerusform>
        </translation>
    </message>
    <message>
        <source>Copie du</source>
        <translation>Kopie vom</translation>
    </message>
    <message>
        <source>Raison</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Wettbewerbe</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Mannschaften</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Ergebnisse</translation>
    </message>
</context>
<context>
    <name>MotsSaison</name>
    <message>
        <source>Concours</source>
        <translation>Wettbewerbe</translation>
    </message>
    <message>
        <source>Parties</source>
        <translation>Spiele</translation>
    </message>
    <message>
        <source>Gagnées</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Pour</source>
        <translation>Erzielt</translation>
    </message>
    <message>
        <source>Contre</source>
        <translation>Erhalten</translation>
    </message>
    <message>
        <source>Ecart</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Catégorie</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Mannschaften</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Runden</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Verein</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Name</translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n Wettbewerb</numerusform>
            <numerusform>%n Wettbewerbe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n Mannschaft</numerusform>
            <numerusform>%n Mannschaften</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n partie(s)</source>
        <translation>
            <numerusform>%n Spiel</numerusform>
            <numerusform>%n Spiele</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s)</source>
        <translation>
            <numerusform>%n Verein</numerusform>
            <numerusform>%n Vereine</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licence(s)</source>
        <translation>
            <numerusform>%n Lizenz</numerusform>
            <numerusform>%n Lizenzen</numerusform>
        </translation>
    </message>
    <message>
        <source>N°</source>
        <translation>Nr.</translation>
    </message>
</context>
<context>
    <name>RapportTirage</name>
    <message>
        <source>Rapport du tirage</source>
        <translation>Bericht der Auslosung</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Runde</translation>
    </message>
    <message>
        <source>Montrer après chaque tirage qui a quelque chose à signaler</source>
        <translation>Nach jeder Auslosung zeigen, die etwas zu melden hat</translation>
    </message>
    <message>
        <source>Rencontres du tour</source>
        <translation>Spiele der Runde</translation>
    </message>
    <message>
        <source>Refaire le tirage</source>
        <translation>Neu auslosen</translation>
    </message>
    <message>
        <source>Refaire jusqu&apos;au meilleur</source>
        <translation>Bis zur besten auslosen</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Fiches de partie</source>
        <translation>Spielzettel</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Niveau</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Equipe</source>
        <translation>Mannschaft</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Verein</translation>
    </message>
    <message>
        <source>Remarque</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>exempte pour la deuxième fois</source>
        <translation>zum zweiten Mal spielfrei</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>spielfrei</translation>
    </message>
    <message>
        <source>évitable</source>
        <translation>vermeidbar</translation>
    </message>
    <message>
        <source>inévitable</source>
        <translation>unvermeidbar</translation>
    </message>
    <message>
        <source>déjà rencontrées au tour %1 (%2)</source>
        <translation>schon in Runde %1 getroffen (%2)</translation>
    </message>
    <message>
        <source>même club (%1)</source>
        <translation>gleicher Verein (%1)</translation>
    </message>
    <message>
        <source>%1 remontée du niveau %2</source>
        <translation>%1 aufgerückt von Stufe %2</translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) déjà jouée(s)</source>
        <translation>
            <numerusform>%n Spiel schon gespielt</numerusform>
            <numerusform>%n Spiele schon gespielt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) d&apos;un même club</source>
        <translation>
            <numerusform>%n Spiel im gleichen Verein</numerusform>
            <numerusform>%n Spiele im gleichen Verein</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucun tour n&apos;est tiré.</source>
        <translation>Es ist keine Runde ausgelost.</translation>
    </message>
    <message>
        <source>Tour %1 : %2.</source>
        <translation>Runde %1: %2.</translation>
    </message>
    <message>
        <source>Niveau %1 : une autre répartition aurait %2 défaut(s) au lieu de %3.</source>
        <translation>Stufe %1: eine andere Verteilung hätte %2 statt %3 solcher Spiele.</translation>
    </message>
    <message>
        <source>Le tirage d&apos;avant : %1.</source>
        <translation>Die Auslosung davor: %1.</translation>
    </message>
    <message>
        <source>Un résultat de ce tour est saisi : il ne se refait plus.</source>
        <translation>Ein Ergebnis dieser Runde ist erfasst: sie kann nicht mehr neu ausgelost werden.</translation>
    </message>
    <message>
        <source>Refaire le tirage du tour %1 ?</source>
        <translation>Runde %1 neu auslosen?</translation>
    </message>
    <message>
        <source>Le tirage actuel sera remplacé ; une copie en est gardée.</source>
        <translation>Die jetzige Auslosung wird ersetzt; eine Kopie bleibt erhalten.</translation>
    </message>
    <message>
        <source>Tirages essayés</source>
        <translation>Versuchte Auslosungen</translation>
    </message>
    <message numerus="yes">
        <source>Le meilleur de %n tirage(s) : %1.</source>
        <translation>
            <numerusform>Die beste von %n Auslosung: %1.</numerusform>
            <numerusform>Die beste von %n Auslosungen: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Le tirage actuel : %1.</source>
        <translation>Die jetzige Auslosung: %1.</translation>
    </message>
    <message>
        <source>Le mettre à la place ?</source>
        <translation>An ihre Stelle setzen?</translation>
    </message>
    <message>
        <source>Tour %1</source>
        <translation>Runde %1</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Platz</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punkte</translation>
    </message>
</context>
<context>
    <name>Saison</name>
    <message>
        <source>Saison</source>
        <translation>Saison</translation>
    </message>
    <message>
        <source>Du</source>
        <translation>Vom</translation>
    </message>
    <message>
        <source>Premier jour</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>au</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Dernier jour</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Liste montrée</source>
        <translation>Gezeigte Liste</translation>
    </message>
    <message>
        <source>Sommes de la saison</source>
        <translation>Summen der Saison</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Exporter...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Tout montrer</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Nombre d&apos;équipes, jour après jour</source>
        <translation>Zahl der Mannschaften, Tag für Tag</translation>
    </message>
</context>
<context>
    <name>VuePublique</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Chronomètre</source>
        <translation>Stoppuhr</translation>
    </message>
    <message>
        <source>Alarme dans</source>
        <translation>Wecker in</translation>
    </message>
    <message>
        <source>Alarme</source>
        <translation>Wecker</translation>
    </message>
    <message>
        <source>Affichage public</source>
        <translation>Öffentliche Anzeige</translation>
    </message>
</context>
</TS>
