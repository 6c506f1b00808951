<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="fr_FR">
<context>
    <name>AffichagePublic</name>
    <message>
        <source>Affichage public</source>
        <translation>Openbaar scherm</translation>
    </message>
    <message>
        <source>Pages qui tournent</source>
        <translation>Wisselende pagina&apos;s</translation>
    </message>
    <message>
        <source>Tirage du tour</source>
        <translation>Loting van de ronde</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Verwachte partijen</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Laatste uitslagen</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Klassement</translation>
    </message>
    <message>
        <source>Horloge, chronomètre et alarme</source>
        <translation>Klok, stopwatch en alarm</translation>
    </message>
    <message>
        <source>Durée d&apos;une page</source>
        <translation>Duur van een pagina</translation>
    </message>
    <message>
        <source> secondes</source>
        <translation> seconden</translation>
    </message>
    <message>
        <source>Durée d&apos;une page, en secondes</source>
        <translation>Duur van een pagina, in seconden</translation>
    </message>
    <message>
        <source>Ecran</source>
        <translation>Scherm</translation>
    </message>
    <message>
        <source>Plein écran (F11)</source>
        <translation>Volledig scherm (F11)</translation>
    </message>
    <message>
        <source>Fond sombre</source>
        <translation>Donkere achtergrond</translation>
    </message>
    <message>
        <source>Afficher</source>
        <translation>Tonen</translation>
    </message>
    <message>
        <source>Pause (F12)</source>
        <translation>Pauze (F12)</translation>
    </message>
    <message>
        <source>Page suivante</source>
        <translation>Volgende pagina</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Ecran %1</source>
        <translation>Scherm %1</translation>
    </message>
    <message>
        <source>L&apos;affichage tourne seul sur l&apos;autre écran pendant que vous travaillez ici.</source>
        <translation>Het openbare scherm loopt vanzelf op het andere beeldscherm terwijl u hier werkt.</translation>
    </message>
    <message>
        <source>Un seul écran est branché : l&apos;affichage s&apos;ouvre dans une fenêtre ordinaire.</source>
        <translation>Er is maar één beeldscherm aangesloten: het openbare scherm opent in een gewoon venster.</translation>
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
        <translation>Veiligheidskopieën</translation>
    </message>
    <message>
        <source>Concours de la copie choisie</source>
        <translation>Wedstrijden in de gekozen kopie</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Terugzetten</translation>
    </message>
    <message>
        <source>Copier maintenant</source>
        <translation>Nu kopiëren</translation>
    </message>
    <message>
        <source>Copier vers...</source>
        <translation>Kopiëren naar...</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Par rapport à la base</source>
        <translation>Vergeleken met de basis</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Wedstrijden</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondes</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Uitslagen</translation>
    </message>
    <message>
        <source>Base en service : %1.</source>
        <translation>Basis in gebruik: %1.</translation>
    </message>
    <message>
        <source>lecture en cours</source>
        <translation>wordt gelezen</translation>
    </message>
    <message>
        <source>copie illisible</source>
        <translation>kopie onleesbaar</translation>
    </message>
    <message>
        <source>identique</source>
        <translation>gelijk</translation>
    </message>
    <message>
        <source>mêmes nombres, contenu différent</source>
        <translation>zelfde aantallen, andere inhoud</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite : %1</source>
        <translation>De kopie kon niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>La dernière copie contient déjà tout : %1.</source>
        <translation>De laatste kopie bevat alles al: %1.</translation>
    </message>
    <message>
        <source>Copie faite : %1.</source>
        <translation>Kopie gemaakt: %1.</translation>
    </message>
    <message>
        <source>Copier la base vers</source>
        <translation>Basis kopiëren naar</translation>
    </message>
    <message>
        <source>La copie %1 est écrite, relue et complète.</source>
        <translation>De kopie %1 is geschreven, teruggelezen en volledig.</translation>
    </message>
    <message>
        <source>%1 est la base en service : choisissez un autre nom.</source>
        <translation>%1 is de basis in gebruik: kies een andere naam.</translation>
    </message>
    <message>
        <source>Ce qui a été écrit dans %1 ne se relit pas : rien n&apos;y est resté. Essayez un autre support.</source>
        <translation>Wat naar %1 is geschreven, kan niet worden teruggelezen: er is niets achtergebleven. Probeer een ander medium.</translation>
    </message>
    <message>
        <source>La copie %1 n&apos;a pas pu être écrite : regardez la place et les droits.</source>
        <translation>De kopie %1 kon niet worden geschreven: controleer de ruimte en de rechten.</translation>
    </message>
    <message>
        <source>Restaurer la copie du %1 ?</source>
        <translation>De kopie van %1 terugzetten?</translation>
    </message>
    <message>
        <source>Elle contient %1.</source>
        <translation>Zij bevat %1.</translation>
    </message>
    <message>
        <source>Par rapport à la base : %1.</source>
        <translation>Vergeleken met de basis: %1.</translation>
    </message>
    <message>
        <source>Une copie de la base actuelle est faite d&apos;abord : la restaurer à son tour annule ce geste.</source>
        <translation>Eerst wordt de huidige basis gekopieerd: die terugzetten maakt dit ongedaan.</translation>
    </message>
    <message>
        <source>La copie du %1 est en place.</source>
        <translation>De kopie van %1 is teruggezet.</translation>
    </message>
    <message>
        <source>La base d&apos;avant est dans la copie %1.</source>
        <translation>De basis van daarvoor staat in de kopie %1.</translation>
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
        <translation>Licenties</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Wedstrijden</translation>
    </message>
    <message>
        <source>tous</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Saison du %1 au %2</source>
        <translation>Seizoen van %1 tot %2</translation>
    </message>
    <message>
        <source>Exporter la liste</source>
        <translation>Lijst exporteren</translation>
    </message>
    <message>
        <source>La liste est dans %1.</source>
        <translation>De lijst staat in %1.</translation>
    </message>
    <message>
        <source>La liste n&apos;a pas pu être écrite : %1</source>
        <translation>De lijst kon niet worden geschreven: %1</translation>
    </message>
    <message>
        <source>Concours comptés</source>
        <translation>Wedstrijden geteld</translation>
    </message>
</context>
<context>
    <name>ListesPubliques</name>
    <message>
        <source>Tirage du tour %1</source>
        <translation>Loting van ronde %1</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Verwachte partijen</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Laatste uitslagen</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Klassement</translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) inscrite(s)</source>
        <translation>
            <numerusform>%n team ingeschreven</numerusform>
            <numerusform>%n teams ingeschreven</numerusform>
        </translation>
    </message>
    <message>
        <source>Concours terminé</source>
        <translation>Wedstrijd afgelopen</translation>
    </message>
    <message>
        <source>Tour %1 / %2</source>
        <translation>Ronde %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>, manque %n résultat(s)</source>
        <translation>
            <numerusform>, %n uitslag ontbreekt</numerusform>
            <numerusform>, %n uitslagen ontbreken</numerusform>
        </translation>
    </message>
    <message>
        <source>, complet</source>
        <translation>, volledig</translation>
    </message>
    <message>
        <source>Dernier résultat : %1 bat %2</source>
        <translation>Laatste uitslag: %1 wint van %2</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>vrij</translation>
    </message>
    <message>
        <source>Lancées</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Pas encore lancées</source>
        <translation>Nog niet begonnen</translation>
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
        <translation>&amp;Extra</translation>
    </message>
    <message>
        <source>&amp;Copies de sécurité</source>
        <translation>Veiligheids&amp;kopieën</translation>
    </message>
    <message>
        <source>&amp;Rapport du tirage</source>
        <translation>&amp;Verslag van de loting</translation>
    </message>
    <message>
        <source>&amp;Affichage public</source>
        <translation>Openbaar &amp;scherm</translation>
    </message>
    <message>
        <source>&amp;Saison</source>
        <translation>&amp;Seizoen</translation>
    </message>
</context>
<context>
    <name>ModeleSaison</name>
    <message>
        <source>Meilleure place</source>
        <translation>Beste plaats</translation>
    </message>
</context>
<context>
    <name>MotsCopies</name>
    <message>
        <source>inconnue</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>départ du programme</source>
        <translation>start van het programma</translation>
    </message>
    <message>
        <source>remise à zéro</source>
        <translation>wissen</translation>
    </message>
    <message>
        <source>suppression</source>
        <translation>verwijdering</translation>
    </message>
    <message>
        <source>nouveau tirage</source>
        <translation>nieuwe loting</translation>
    </message>
    <message>
        <source>annulation</source>
        <translation>annulering</translation>
    </message>
    <message>
        <source>restauration</source>
        <translation>terugzetting</translation>
    </message>
    <message>
        <source>à la demande</source>
        <translation>op verzoek</translation>
    </message>
    <message>
        <source>fichier disparu ou changé</source>
        <translation>bestand weg of gewijzigd</translation>
    </message>
    <message numerus="yes">
        <source>%n concours de plus</source>
        <translation>
            <numerusform>%n wedstrijd meer</numerusform>
            <numerusform>%n wedstrijden meer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours de moins</source>
        <translation>
            <numerusform>%n wedstrijd minder</numerusform>
            <numerusform>%n wedstrijden minder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de plus</source>
        <translation>
            <numerusform>%n team meer</numerusform>
            <numerusform>%n teams meer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de moins</source>
        <translation>
            <numerusform>%n team minder</numerusform>
            <numerusform>%n teams minder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de plus</source>
        <translation>
            <numerusform>%n uitslag meer</numerusform>
            <numerusform>%n uitslagen meer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de moins</source>
        <translation>
            <numerusform>%n uitslag minder</numerusform>
            <numerusform>%n uitslagen minder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de plus</source>
        <translation>
            <numerusform>%n bekende speler meer</numerusform>
            <numerusform>%n bekende spelers meer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de moins</source>
        <translation>
            <numerusform>%n bekende speler minder</numerusform>
            <numerusform>%n bekende spelers minder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de plus</source>
        <translation>
            <numerusform>%n club meer</numerusform>
            <numerusform>%n clubs meer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de moins</source>
        <translation>
            <numerusform>%n club minder</numerusform>
            <numerusform>%n clubs minder</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n wedstrijd</numerusform>
            <numerusform>%n wedstrijden</numerusform>
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
            <numerusform>%n uitslag</numerusform>
            <numerusform>%n uitslagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Copie du</source>
        <translation>Kopie van</translation>
    </message>
    <message>
        <source>Raison</source>
        <translation>Reden</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Wedstrijden</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Uitslagen</translation>
    </message>
</context>
<context>
    <name>MotsSaison</name>
    <message>
        <source>Concours</source>
        <translation>Wedstrijden</translation>
    </message>
    <message>
        <source>Parties</source>
        <translation>Partijen</translation>
    </message>
    <message>
        <source>Gagnées</source>
        <translation>Gewonnen</translation>
    </message>
    <message>
        <source>Pour</source>
        <translation>Voor</translation>
    </message>
    <message>
        <source>Contre</source>
        <translation>Tegen</translation>
    </message>
    <message>
        <source>Ecart</source>
        <translation>Verschil</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Catégorie</source>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Teams</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondes</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licentie</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Naam</translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n wedstrijd</numerusform>
            <numerusform>%n wedstrijden</numerusform>
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
            <numerusform>%n partij</numerusform>
            <numerusform>%n partijen</numerusform>
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
            <numerusform>%n licentie</numerusform>
            <numerusform>%n licenties</numerusform>
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
        <translation>Verslag van de loting</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Ronde</translation>
    </message>
    <message>
        <source>Montrer après chaque tirage qui a quelque chose à signaler</source>
        <translation>Tonen na elke loting die iets te melden heeft</translation>
    </message>
    <message>
        <source>Rencontres du tour</source>
        <translation>Partijen van de ronde</translation>
    </message>
    <message>
        <source>Refaire le tirage</source>
        <translation>Opnieuw loten</translation>
    </message>
    <message>
        <source>Refaire jusqu&apos;au meilleur</source>
        <translation>Loten tot de beste</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Fiches de partie</source>
        <translation>Partijbriefjes</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Niveau</source>
        <translation>Niveau</translation>
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
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>exempte pour la deuxième fois</source>
        <translation>voor de tweede keer vrij</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>vrij</translation>
    </message>
    <message>
        <source>évitable</source>
        <translation>vermijdbaar</translation>
    </message>
    <message>
        <source>inévitable</source>
        <translation>onvermijdelijk</translation>
    </message>
    <message>
        <source>déjà rencontrées au tour %1 (%2)</source>
        <translation>al ontmoet in ronde %1 (%2)</translation>
    </message>
    <message>
        <source>même club (%1)</source>
        <translation>zelfde club (%1)</translation>
    </message>
    <message>
        <source>%1 remontée du niveau %2</source>
        <translation>%1 opgeschoven van niveau %2</translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) déjà jouée(s)</source>
        <translation>
            <numerusform>%n partij al gespeeld</numerusform>
            <numerusform>%n partijen al gespeeld</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) d&apos;un même club</source>
        <translation>
            <numerusform>%n partij binnen één club</numerusform>
            <numerusform>%n partijen binnen één club</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucun tour n&apos;est tiré.</source>
        <translation>Er is geen ronde geloot.</translation>
    </message>
    <message>
        <source>Tour %1 : %2.</source>
        <translation>Ronde %1: %2.</translation>
    </message>
    <message>
        <source>Niveau %1 : une autre répartition aurait %2 défaut(s) au lieu de %3.</source>
        <translation>Niveau %1: een andere verdeling zou er %2 hebben in plaats van %3.</translation>
    </message>
    <message>
        <source>Le tirage d&apos;avant : %1.</source>
        <translation>De loting daarvoor: %1.</translation>
    </message>
    <message>
        <source>Un résultat de ce tour est saisi : il ne se refait plus.</source>
        <translation>Een uitslag van deze ronde is ingevoerd: er kan niet meer opnieuw worden geloot.</translation>
    </message>
    <message>
        <source>Refaire le tirage du tour %1 ?</source>
        <translation>Ronde %1 opnieuw loten?</translation>
    </message>
    <message>
        <source>Le tirage actuel sera remplacé ; une copie en est gardée.</source>
        <translation>De huidige loting wordt vervangen; een kopie blijft bewaard.</translation>
    </message>
    <message>
        <source>Tirages essayés</source>
        <translation>Geprobeerde lotingen</translation>
    </message>
    <message numerus="yes">
        <source>Le meilleur de %n tirage(s) : %1.</source>
        <translation>
            <numerusform>De beste van %n loting: %1.</numerusform>
            <numerusform>De beste van %n lotingen: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Le tirage actuel : %1.</source>
        <translation>De huidige loting: %1.</translation>
    </message>
    <message>
        <source>Le mettre à la place ?</source>
        <translation>In de plaats zetten?</translation>
    </message>
    <message>
        <source>Tour %1</source>
        <translation>Ronde %1</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Baan</translation>
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
        <translation>Seizoen</translation>
    </message>
    <message>
        <source>Du</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Premier jour</source>
        <translation>Eerste dag</translation>
    </message>
    <message>
        <source>au</source>
        <translation>tot</translation>
    </message>
    <message>
        <source>Dernier jour</source>
        <translation>Laatste dag</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Liste montrée</source>
        <translation>Getoonde lijst</translation>
    </message>
    <message>
        <source>Sommes de la saison</source>
        <translation>Totalen van het seizoen</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Exporter...</source>
        <translation>Exporteren...</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Tout montrer</source>
        <translation>Alles tonen</translation>
    </message>
    <message>
        <source>Nombre d&apos;équipes, jour après jour</source>
        <translation>Aantal teams, dag na dag</translation>
    </message>
</context>
<context>
    <name>VuePublique</name>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>Chronomètre</source>
        <translation>Stopwatch</translation>
    </message>
    <message>
        <source>Alarme dans</source>
        <translation>Alarm over</translation>
    </message>
    <message>
        <source>Alarme</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Affichage public</source>
        <translation>Openbaar scherm</translation>
    </message>
</context>
</TS>
