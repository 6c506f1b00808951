<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="fr_FR">
<context>
    <name>AffichagePublic</name>
    <message>
        <source>Affichage public</source>
        <translation>Public display</translation>
    </message>
    <message>
        <source>Pages qui tournent</source>
        <translation>Pages that take turns</translation>
    </message>
    <message>
        <source>Tirage du tour</source>
        <translation>Draw of the round</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Matches awaited</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Last results</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Ranking</translation>
    </message>
    <message>
        <source>Horloge, chronomètre et alarme</source>
        <translation>Clock, stopwatch and alarm</translation>
    </message>
    <message>
        <source>Durée d&apos;une page</source>
        <translation>Time of a page</translation>
    </message>
    <message>
        <source> secondes</source>
        <translation> seconds</translation>
    </message>
    <message>
        <source>Durée d&apos;une page, en secondes</source>
        <translation>Time of a page, in seconds</translation>
    </message>
    <message>
        <source>Ecran</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>Plein écran (F11)</source>
        <translation>Full screen (F11)</translation>
    </message>
    <message>
        <source>Fond sombre</source>
        <translation>Dark ground</translation>
    </message>
    <message>
        <source>Afficher</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Pause (F12)</source>
        <translation>Pause (F12)</translation>
    </message>
    <message>
        <source>Page suivante</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Ecran %1</source>
        <translation>Screen %1</translation>
    </message>
    <message>
        <source>L&apos;affichage tourne seul sur l&apos;autre écran pendant que vous travaillez ici.</source>
        <translation>The display runs by itself on the other screen while you work here.</translation>
    </message>
    <message>
        <source>Un seul écran est branché : l&apos;affichage s&apos;ouvre dans une fenêtre ordinaire.</source>
        <translation>Only one screen is connected: the display opens in an ordinary window.</translation>
    </message>
    <message>
        <source>Cacher</source>
        <translation>Hide</translation>
    </message>
</context>
<context>
    <name>CopiesSecurite</name>
    <message>
        <source>Copies de sécurité</source>
        <translation>Safety copies</translation>
    </message>
    <message>
        <source>Concours de la copie choisie</source>
        <translation>Competitions in the chosen copy</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Copier maintenant</source>
        <translation>Copy now</translation>
    </message>
    <message>
        <source>Copier vers...</source>
        <translation>Copy to...</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Par rapport à la base</source>
        <translation>Compared with the base</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Competitions</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rounds</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Results</translation>
    </message>
    <message>
        <source>Base en service : %1.</source>
        <translation>Base in use: %1.</translation>
    </message>
    <message>
        <source>lecture en cours</source>
        <translation>being read</translation>
    </message>
    <message>
        <source>copie illisible</source>
        <translation>copy cannot be read</translation>
    </message>
    <message>
        <source>identique</source>
        <translation>identical</translation>
    </message>
    <message>
        <source>mêmes nombres, contenu différent</source>
        <translation>same numbers, different contents</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite : %1</source>
        <translation>The copy could not be made: %1</translation>
    </message>
    <message>
        <source>La dernière copie contient déjà tout : %1.</source>
        <translation>The last copy already holds everything: %1.</translation>
    </message>
    <message>
        <source>Copie faite : %1.</source>
        <translation>Copy made: %1.</translation>
    </message>
    <message>
        <source>Copier la base vers</source>
        <translation>Copy the base to</translation>
    </message>
    <message>
        <source>La copie %1 est écrite, relue et complète.</source>
        <translation>The copy %1 is written, read back and complete.</translation>
    </message>
    <message>
        <source>%1 est la base en service : choisissez un autre nom.</source>
        <translation>%1 is the base in use: choose another name.</translation>
    </message>
    <message>
        <source>Ce qui a été écrit dans %1 ne se relit pas : rien n&apos;y est resté. Essayez un autre support.</source>
        <translation>What was written to %1 cannot be read back: nothing has been left there. Try another medium.</translation>
    </message>
    <message>
        <source>La copie %1 n&apos;a pas pu être écrite : regardez la place et les droits.</source>
        <translation>The copy %1 could not be written: check the room and the rights.</translation>
    </message>
    <message>
        <source>Restaurer la copie du %1 ?</source>
        <translation>Restore the copy of %1?</translation>
    </message>
    <message>
        <source>Elle contient %1.</source>
        <translation>It holds %1.</translation>
    </message>
    <message>
        <source>Par rapport à la base : %1.</source>
        <translation>Compared with the base: %1.</translation>
    </message>
    <message>
        <source>Une copie de la base actuelle est faite d&apos;abord : la restaurer à son tour annule ce geste.</source>
        <translation>A copy of the present base is made first: restoring that one undoes this.</translation>
    </message>
    <message>
        <source>La copie du %1 est en place.</source>
        <translation>The copy of %1 is in place.</translation>
    </message>
    <message>
        <source>La base d&apos;avant est dans la copie %1.</source>
        <translation>The base of before is in the copy %1.</translation>
    </message>
</context>
<context>
    <name>FormeSaison</name>
    <message>
        <source>Clubs</source>
        <translation>Clubs</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Competitions</translation>
    </message>
    <message>
        <source>tous</source>
        <translation>all</translation>
    </message>
    <message>
        <source>Saison du %1 au %2</source>
        <translation>Season from %1 to %2</translation>
    </message>
    <message>
        <source>Exporter la liste</source>
        <translation>Export the list</translation>
    </message>
    <message>
        <source>La liste est dans %1.</source>
        <translation>The list is in %1.</translation>
    </message>
    <message>
        <source>La liste n&apos;a pas pu être écrite : %1</source>
        <translation>The list could not be written: %1</translation>
    </message>
    <message>
        <source>Concours comptés</source>
        <translation>Competitions counted</translation>
    </message>
</context>
<context>
    <name>ListesPubliques</name>
    <message>
        <source>Tirage du tour %1</source>
        <translation>Draw of round %1</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Matches awaited</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Last results</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Ranking</translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) inscrite(s)</source>
        <translation>
            <numerusform>%n team registered</numerusform>
            <numerusform>%n teams registered</numerusform>
        </translation>
    </message>
    <message>
        <source>Concours terminé</source>
        <translation>Competition over</translation>
    </message>
    <message>
        <source>Tour %1 / %2</source>
        <translation>Round %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>, manque %n résultat(s)</source>
        <translation>
            <numerusform>, %n result missing</numerusform>
            <numerusform>, %n results missing</numerusform>
        </translation>
    </message>
    <message>
        <source>, complet</source>
        <translation>, complete</translation>
    </message>
    <message>
        <source>Dernier résultat : %1 bat %2</source>
        <translation>Last result: %1 beats %2</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>bye</translation>
    </message>
    <message>
        <source>Lancées</source>
        <translation>Started</translation>
    </message>
    <message>
        <source>Pas encore lancées</source>
        <translation>Not yet started</translation>
    </message>
    <message>
        <source>Equ.</source>
        <translation>Team</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>V</source>
        <translation>W</translation>
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
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>&amp;Copies de sécurité</source>
        <translation>Safety &amp;copies</translation>
    </message>
    <message>
        <source>&amp;Rapport du tirage</source>
        <translation>&amp;Report of the draw</translation>
    </message>
    <message>
        <source>&amp;Affichage public</source>
        <translation>&amp;Public display</translation>
    </message>
    <message>
        <source>&amp;Saison</source>
        <translation>&amp;Season</translation>
    </message>
</context>
<context>
    <name>ModeleSaison</name>
    <message>
        <source>Meilleure place</source>
        <translation>Best place</translation>
    </message>
</context>
<context>
    <name>MotsCopies</name>
    <message>
        <source>inconnue</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>départ du programme</source>
        <translation>program start</translation>
    </message>
    <message>
        <source>remise à zéro</source>
        <translation>season purge</translation>
    </message>
    <message>
        <source>suppression</source>
        <translation>removal</translation>
    </message>
    <message>
        <source>nouveau tirage</source>
        <translation>new draw</translation>
    </message>
    <message>
        <source>annulation</source>
        <translation>cancellation</translation>
    </message>
    <message>
        <source>restauration</source>
        <translation>restoration</translation>
    </message>
    <message>
        <source>à la demande</source>
        <translation>on request</translation>
    </message>
    <message>
        <source>fichier disparu ou changé</source>
        <translation>file gone or changed</translation>
    </message>
    <message numerus="yes">
        <source>%n concours de plus</source>
        <translation>
            <numerusform>%n competition more</numerusform>
            <numerusform>%n competitions more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours de moins</source>
        <translation>
            <numerusform>%n competition fewer</numerusform>
            <numerusform>%n competitions fewer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de plus</source>
        <translation>
            <numerusform>%n team more</numerusform>
            <numerusform>%n teams more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de moins</source>
        <translation>
            <numerusform>%n team fewer</numerusform>
            <numerusform>%n teams fewer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de plus</source>
        <translation>
            <numerusform>%n result more</numerusform>
            <numerusform>%n results more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de moins</source>
        <translation>
            <numerusform>%n result fewer</numerusform>
            <numerusform>%n results fewer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de plus</source>
        <translation>
            <numerusform>%n known player more</numerusform>
            <numerusform>%n known players more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de moins</source>
        <translation>
            <numerusform>%n known player fewer</numerusform>
            <numerusform>%n known players fewer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de plus</source>
        <translation>
            <numerusform>%n club more</numerusform>
            <numerusform>%n clubs more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de moins</source>
        <translation>
            <numerusform>%n club fewer</numerusform>
            <numerusform>%n clubs fewer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n competition</numerusform>
            <numerusform>%n competitions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n team</numerusform>
            <numerusform>%n teams</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s)</source>
        <translation>
            <numerusform>%n result</numerusform>
            <numerusform>%n results</numerusform>
        </translation>
    </message>
    <message>
        <source>Copie du</source>
        <translation>Copy of</translation>
    </message>
    <message>
        <source>Raison</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Competitions</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Results</translation>
    </message>
</context>
<context>
    <name>MotsSaison</name>
    <message>
        <source>Concours</source>
        <translation>Competitions</translation>
    </message>
    <message>
        <source>Parties</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>Gagnées</source>
        <translation>Won</translation>
    </message>
    <message>
        <source>Pour</source>
        <translation>For</translation>
    </message>
    <message>
        <source>Contre</source>
        <translation>Against</translation>
    </message>
    <message>
        <source>Ecart</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Catégorie</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rounds</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Name</translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n competition</numerusform>
            <numerusform>%n competitions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n team</numerusform>
            <numerusform>%n teams</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n partie(s)</source>
        <translation>
            <numerusform>%n match</numerusform>
            <numerusform>%n matches</numerusform>
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
    <message>
        <source>N°</source>
        <translation>No.</translation>
    </message>
</context>
<context>
    <name>RapportTirage</name>
    <message>
        <source>Rapport du tirage</source>
        <translation>Report of the draw</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Round</translation>
    </message>
    <message>
        <source>Montrer après chaque tirage qui a quelque chose à signaler</source>
        <translation>Show after each draw that has something to report</translation>
    </message>
    <message>
        <source>Rencontres du tour</source>
        <translation>Matches of the round</translation>
    </message>
    <message>
        <source>Refaire le tirage</source>
        <translation>Draw again</translation>
    </message>
    <message>
        <source>Refaire jusqu&apos;au meilleur</source>
        <translation>Draw until the best</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Fiches de partie</source>
        <translation>Match slips</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Niveau</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Equipe</source>
        <translation>Team</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Remarque</source>
        <translation>Remark</translation>
    </message>
    <message>
        <source>exempte pour la deuxième fois</source>
        <translation>bye for the second time</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>bye</translation>
    </message>
    <message>
        <source>évitable</source>
        <translation>avoidable</translation>
    </message>
    <message>
        <source>inévitable</source>
        <translation>unavoidable</translation>
    </message>
    <message>
        <source>déjà rencontrées au tour %1 (%2)</source>
        <translation>met already in round %1 (%2)</translation>
    </message>
    <message>
        <source>même club (%1)</source>
        <translation>same club (%1)</translation>
    </message>
    <message>
        <source>%1 remontée du niveau %2</source>
        <translation>%1 pulled up from level %2</translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) déjà jouée(s)</source>
        <translation>
            <numerusform>%n match played before</numerusform>
            <numerusform>%n matches played before</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) d&apos;un même club</source>
        <translation>
            <numerusform>%n match of one club</numerusform>
            <numerusform>%n matches of one club</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucun tour n&apos;est tiré.</source>
        <translation>No round has been drawn.</translation>
    </message>
    <message>
        <source>Tour %1 : %2.</source>
        <translation>Round %1: %2.</translation>
    </message>
    <message>
        <source>Niveau %1 : une autre répartition aurait %2 défaut(s) au lieu de %3.</source>
        <translation>Level %1: another pairing would have %2 instead of %3 such matches.</translation>
    </message>
    <message>
        <source>Le tirage d&apos;avant : %1.</source>
        <translation>The draw before: %1.</translation>
    </message>
    <message>
        <source>Un résultat de ce tour est saisi : il ne se refait plus.</source>
        <translation>A result of this round has been entered: it cannot be drawn again.</translation>
    </message>
    <message>
        <source>Refaire le tirage du tour %1 ?</source>
        <translation>Draw round %1 again?</translation>
    </message>
    <message>
        <source>Le tirage actuel sera remplacé ; une copie en est gardée.</source>
        <translation>The present draw will be replaced; a copy of it is kept.</translation>
    </message>
    <message>
        <source>Tirages essayés</source>
        <translation>Draws tried</translation>
    </message>
    <message numerus="yes">
        <source>Le meilleur de %n tirage(s) : %1.</source>
        <translation>
            <numerusform>The best of %n draw: %1.</numerusform>
            <numerusform>The best of %n draws: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Le tirage actuel : %1.</source>
        <translation>The present draw: %1.</translation>
    </message>
    <message>
        <source>Le mettre à la place ?</source>
        <translation>Put it in its place?</translation>
    </message>
    <message>
        <source>Tour %1</source>
        <translation>Round %1</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Ground</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
</context>
<context>
    <name>Saison</name>
    <message>
        <source>Saison</source>
        <translation>Season</translation>
    </message>
    <message>
        <source>Du</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Premier jour</source>
        <translation>First day</translation>
    </message>
    <message>
        <source>au</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Dernier jour</source>
        <translation>Last day</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Liste montrée</source>
        <translation>List shown</translation>
    </message>
    <message>
        <source>Sommes de la saison</source>
        <translation>Sums of the season</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Exporter...</source>
        <translation>Export...</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Tout montrer</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>Nombre d&apos;équipes, jour après jour</source>
        <translation>Number of teams, day after day</translation>
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
        <translation>Stopwatch</translation>
    </message>
    <message>
        <source>Alarme dans</source>
        <translation>Alarm in</translation>
    </message>
    <message>
        <source>Alarme</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Affichage public</source>
        <translation>Public display</translation>
    </message>
</context>
</TS>
