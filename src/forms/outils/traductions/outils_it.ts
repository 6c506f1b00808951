<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="fr_FR">
<context>
    <name>AffichagePublic</name>
    <message>
        <source>Affichage public</source>
        <translation>Schermo pubblico</translation>
    </message>
    <message>
        <source>Pages qui tournent</source>
        <translation>Pagine che si alternano</translation>
    </message>
    <message>
        <source>Tirage du tour</source>
        <translation>Sorteggio del turno</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Partite attese</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Ultimi risultati</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Classifica</translation>
    </message>
    <message>
        <source>Horloge, chronomètre et alarme</source>
        <translation>Orologio, cronometro e sveglia</translation>
    </message>
    <message>
        <source>Durée d&apos;une page</source>
        <translation>Durata di una pagina</translation>
    </message>
    <message>
        <source> secondes</source>
        <translation> secondi</translation>
    </message>
    <message>
        <source>Durée d&apos;une page, en secondes</source>
        <translation>Durata di una pagina, in secondi</translation>
    </message>
    <message>
        <source>Ecran</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Plein écran (F11)</source>
        <translation>Schermo intero (F11)</translation>
    </message>
    <message>
        <source>Fond sombre</source>
        <translation>Sfondo scuro</translation>
    </message>
    <message>
        <source>Afficher</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Pause (F12)</source>
        <translation>Pausa (F12)</translation>
    </message>
    <message>
        <source>Page suivante</source>
        <translation>Pagina seguente</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Ecran %1</source>
        <translation>Schermo %1</translation>
    </message>
    <message>
        <source>L&apos;affichage tourne seul sur l&apos;autre écran pendant que vous travaillez ici.</source>
        <translation>Lo schermo pubblico scorre da solo sull&apos;altro monitor mentre lavorate qui.</translation>
    </message>
    <message>
        <source>Un seul écran est branché : l&apos;affichage s&apos;ouvre dans une fenêtre ordinaire.</source>
        <translation>È collegato un solo monitor: lo schermo pubblico si apre in una finestra normale.</translation>
    </message>
    <message>
        <source>Cacher</source>
        <translation>Nascondi</translation>
    </message>
</context>
<context>
    <name>CopiesSecurite</name>
    <message>
        <source>Copies de sécurité</source>
        <translation>Copie di sicurezza</translation>
    </message>
    <message>
        <source>Concours de la copie choisie</source>
        <translation>Gare della copia scelta</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Copier maintenant</source>
        <translation>Copia adesso</translation>
    </message>
    <message>
        <source>Copier vers...</source>
        <translation>Copia in...</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Par rapport à la base</source>
        <translation>Rispetto alla base</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Gare</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Squadre</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Turni</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Risultati</translation>
    </message>
    <message>
        <source>Base en service : %1.</source>
        <translation>Base in uso: %1.</translation>
    </message>
    <message>
        <source>lecture en cours</source>
        <translation>lettura in corso</translation>
    </message>
    <message>
        <source>copie illisible</source>
        <translation>copia illeggibile</translation>
    </message>
    <message>
        <source>identique</source>
        <translation>identica</translation>
    </message>
    <message>
        <source>mêmes nombres, contenu différent</source>
        <translation>stessi numeri, contenuto diverso</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite : %1</source>
        <translation>Non è stato possibile fare la copia: %1</translation>
    </message>
    <message>
        <source>La dernière copie contient déjà tout : %1.</source>
        <translation>L&apos;ultima copia contiene già tutto: %1.</translation>
    </message>
    <message>
        <source>Copie faite : %1.</source>
        <translation>Copia fatta: %1.</translation>
    </message>
    <message>
        <source>Copier la base vers</source>
        <translation>Copia la base in</translation>
    </message>
    <message>
        <source>La copie %1 est écrite, relue et complète.</source>
        <translation>La copia %1 è scritta, riletta e completa.</translation>
    </message>
    <message>
        <source>%1 est la base en service : choisissez un autre nom.</source>
        <translation>%1 è la base in uso: scegliete un altro nome.</translation>
    </message>
    <message>
        <source>Ce qui a été écrit dans %1 ne se relit pas : rien n&apos;y est resté. Essayez un autre support.</source>
        <translation>Ciò che è stato scritto in %1 non si rilegge: non vi è rimasto nulla. Provate un altro supporto.</translation>
    </message>
    <message>
        <source>La copie %1 n&apos;a pas pu être écrite : regardez la place et les droits.</source>
        <translation>Non è stato possibile scrivere la copia %1: controllate lo spazio e i diritti.</translation>
    </message>
    <message>
        <source>Restaurer la copie du %1 ?</source>
        <translation>Ripristinare la copia del %1?</translation>
    </message>
    <message>
        <source>Elle contient %1.</source>
        <translation>Contiene %1.</translation>
    </message>
    <message>
        <source>Par rapport à la base : %1.</source>
        <translation>Rispetto alla base: %1.</translation>
    </message>
    <message>
        <source>Une copie de la base actuelle est faite d&apos;abord : la restaurer à son tour annule ce geste.</source>
        <translation>Prima si fa una copia della base attuale: ripristinarla annulla questo gesto.</translation>
    </message>
    <message>
        <source>La copie du %1 est en place.</source>
        <translation>La copia del %1 è al suo posto.</translation>
    </message>
    <message>
        <source>La base d&apos;avant est dans la copie %1.</source>
        <translation>La base di prima è nella copia %1.</translation>
    </message>
</context>
<context>
    <name>FormeSaison</name>
    <message>
        <source>Clubs</source>
        <translation>Società</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Tessere</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Gare</translation>
    </message>
    <message>
        <source>tous</source>
        <translation>tutti</translation>
    </message>
    <message>
        <source>Saison du %1 au %2</source>
        <translation>Stagione dal %1 al %2</translation>
    </message>
    <message>
        <source>Exporter la liste</source>
        <translation>Esporta l&apos;elenco</translation>
    </message>
    <message>
        <source>La liste est dans %1.</source>
        <translation>L&apos;elenco è in %1.</translation>
    </message>
    <message>
        <source>La liste n&apos;a pas pu être écrite : %1</source>
        <translation>Non è stato possibile scrivere l&apos;elenco: %1</translation>
    </message>
    <message>
        <source>Concours comptés</source>
        <translation>Gare contate</translation>
    </message>
</context>
<context>
    <name>ListesPubliques</name>
    <message>
        <source>Tirage du tour %1</source>
        <translation>Sorteggio del turno %1</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Partite attese</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Ultimi risultati</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Classifica</translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) inscrite(s)</source>
        <translation>
            <numerusform>%n squadra iscritta</numerusform>
            <numerusform>%n squadre iscritte</numerusform>
        </translation>
    </message>
    <message>
        <source>Concours terminé</source>
        <translation>Gara terminata</translation>
    </message>
    <message>
        <source>Tour %1 / %2</source>
        <translation>Turno %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>, manque %n résultat(s)</source>
        <translation>
            <numerusform>, manca %n risultato</numerusform>
            <numerusform>, mancano %n risultati</numerusform>
        </translation>
    </message>
    <message>
        <source>, complet</source>
        <translation>, completo</translation>
    </message>
    <message>
        <source>Dernier résultat : %1 bat %2</source>
        <translation>Ultimo risultato: %1 batte %2</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>riposa</translation>
    </message>
    <message>
        <source>Lancées</source>
        <translation>Iniziate</translation>
    </message>
    <message>
        <source>Pas encore lancées</source>
        <translation>Non ancora iniziate</translation>
    </message>
    <message>
        <source>Equ.</source>
        <translation>Sq.</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Società</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
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
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>&amp;Copies de sécurité</source>
        <translation>&amp;Copie di sicurezza</translation>
    </message>
    <message>
        <source>&amp;Rapport du tirage</source>
        <translation>&amp;Rapporto del sorteggio</translation>
    </message>
    <message>
        <source>&amp;Affichage public</source>
        <translation>&amp;Schermo pubblico</translation>
    </message>
    <message>
        <source>&amp;Saison</source>
        <translation>S&amp;tagione</translation>
    </message>
</context>
<context>
    <name>ModeleSaison</name>
    <message>
        <source>Meilleure place</source>
        <translation>Miglior posto</translation>
    </message>
</context>
<context>
    <name>MotsCopies</name>
    <message>
        <source>inconnue</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>départ du programme</source>
        <translation>avvio del programma</translation>
    </message>
    <message>
        <source>remise à zéro</source>
        <translation>azzeramento</translation>
    </message>
    <message>
        <source>suppression</source>
        <translation>eliminazione</translation>
    </message>
    <message>
        <source>nouveau tirage</source>
        <translation>nuovo sorteggio</translation>
    </message>
    <message>
        <source>annulation</source>
        <translation>annullamento</translation>
    </message>
    <message>
        <source>restauration</source>
        <translation>ripristino</translation>
    </message>
    <message>
        <source>à la demande</source>
        <translation>a richiesta</translation>
    </message>
    <message>
        <source>fichier disparu ou changé</source>
        <translation>file sparito o cambiato</translation>
    </message>
    <message numerus="yes">
        <source>%n concours de plus</source>
        <translation>
            <numerusform>%n gara in più</numerusform>
            <numerusform>%n gare in più</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours de moins</source>
        <translation>
            <numerusform>%n gara in meno</numerusform>
            <numerusform>%n gare in meno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de plus</source>
        <translation>
            <numerusform>%n squadra in più</numerusform>
            <numerusform>%n squadre in più</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de moins</source>
        <translation>
            <numerusform>%n squadra in meno</numerusform>
            <numerusform>%n squadre in meno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de plus</source>
        <translation>
            <numerusform>%n risultato in più</numerusform>
            <numerusform>%n risultati in più</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de moins</source>
        <translation>
            <numerusform>%n risultato in meno</numerusform>
            <numerusform>%n risultati in meno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de plus</source>
        <translation>
            <numerusform>%n giocatore noto in più</numerusform>
            <numerusform>%n giocatori noti in più</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de moins</source>
        <translation>
            <numerusform>%n giocatore noto in meno</numerusform>
            <numerusform>%n giocatori noti in meno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de plus</source>
        <translation>
            <numerusform>%n società in più</numerusform>
            <numerusform>%n società in più</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de moins</source>
        <translation>
            <numerusform>%n società in meno</numerusform>
            <numerusform>%n società in meno</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n gara</numerusform>
            <numerusform>%n gare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n squadra</numerusform>
            <numerusform>%n squadre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s)</source>
        <translation>
            <numerusform>%n risultato</numerusform>
            <numerusform>%n risultati</numerusform>
        </translation>
    </message>
    <message>
        <source>Copie du</source>
        <translation>Copia del</translation>
    </message>
    <message>
        <source>Raison</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Gare</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Squadre</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Risultati</translation>
    </message>
</context>
<context>
    <name>MotsSaison</name>
    <message>
        <source>Concours</source>
        <translation>Gare</translation>
    </message>
    <message>
        <source>Parties</source>
        <translation>Partite</translation>
    </message>
    <message>
        <source>Gagnées</source>
        <translation>Vinte</translation>
    </message>
    <message>
        <source>Pour</source>
        <translation>Fatti</translation>
    </message>
    <message>
        <source>Contre</source>
        <translation>Subiti</translation>
    </message>
    <message>
        <source>Ecart</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posto</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Luogo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Catégorie</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Squadre</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Turni</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Società</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Tessera</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Nome</translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n gara</numerusform>
            <numerusform>%n gare</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n squadra</numerusform>
            <numerusform>%n squadre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n partie(s)</source>
        <translation>
            <numerusform>%n partita</numerusform>
            <numerusform>%n partite</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s)</source>
        <translation>
            <numerusform>%n società</numerusform>
            <numerusform>%n società</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licence(s)</source>
        <translation>
            <numerusform>%n tessera</numerusform>
            <numerusform>%n tessere</numerusform>
        </translation>
    </message>
    <message>
        <source>N°</source>
        <translation>N.</translation>
    </message>
</context>
<context>
    <name>RapportTirage</name>
    <message>
        <source>Rapport du tirage</source>
        <translation>Rapporto del sorteggio</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Turno</translation>
    </message>
    <message>
        <source>Montrer après chaque tirage qui a quelque chose à signaler</source>
        <translation>Mostra dopo ogni sorteggio che ha qualcosa da segnalare</translation>
    </message>
    <message>
        <source>Rencontres du tour</source>
        <translation>Incontri del turno</translation>
    </message>
    <message>
        <source>Refaire le tirage</source>
        <translation>Rifai il sorteggio</translation>
    </message>
    <message>
        <source>Refaire jusqu&apos;au meilleur</source>
        <translation>Rifai fino al migliore</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Fiches de partie</source>
        <translation>Schede di partita</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Niveau</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Equipe</source>
        <translation>Squadra</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Società</translation>
    </message>
    <message>
        <source>Remarque</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>exempte pour la deuxième fois</source>
        <translation>riposa per la seconda volta</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>riposa</translation>
    </message>
    <message>
        <source>évitable</source>
        <translation>evitabile</translation>
    </message>
    <message>
        <source>inévitable</source>
        <translation>inevitabile</translation>
    </message>
    <message>
        <source>déjà rencontrées au tour %1 (%2)</source>
        <translation>già incontrate nel turno %1 (%2)</translation>
    </message>
    <message>
        <source>même club (%1)</source>
        <translation>stessa società (%1)</translation>
    </message>
    <message>
        <source>%1 remontée du niveau %2</source>
        <translation>%1 salita dal livello %2</translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) déjà jouée(s)</source>
        <translation>
            <numerusform>%n incontro già giocato</numerusform>
            <numerusform>%n incontri già giocati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) d&apos;un même club</source>
        <translation>
            <numerusform>%n incontro di una stessa società</numerusform>
            <numerusform>%n incontri di una stessa società</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucun tour n&apos;est tiré.</source>
        <translation>Nessun turno è stato sorteggiato.</translation>
    </message>
    <message>
        <source>Tour %1 : %2.</source>
        <translation>Turno %1: %2.</translation>
    </message>
    <message>
        <source>Niveau %1 : une autre répartition aurait %2 défaut(s) au lieu de %3.</source>
        <translation>Livello %1: un&apos;altra ripartizione ne avrebbe %2 invece di %3.</translation>
    </message>
    <message>
        <source>Le tirage d&apos;avant : %1.</source>
        <translation>Il sorteggio di prima: %1.</translation>
    </message>
    <message>
        <source>Un résultat de ce tour est saisi : il ne se refait plus.</source>
        <translation>Un risultato di questo turno è inserito: non si rifà più.</translation>
    </message>
    <message>
        <source>Refaire le tirage du tour %1 ?</source>
        <translation>Rifare il sorteggio del turno %1?</translation>
    </message>
    <message>
        <source>Le tirage actuel sera remplacé ; une copie en est gardée.</source>
        <translation>Il sorteggio attuale sarà sostituito; se ne conserva una copia.</translation>
    </message>
    <message>
        <source>Tirages essayés</source>
        <translation>Sorteggi provati</translation>
    </message>
    <message numerus="yes">
        <source>Le meilleur de %n tirage(s) : %1.</source>
        <translation>
            <numerusform>Il migliore di %n sorteggio: %1.</numerusform>
            <numerusform>Il migliore di %n sorteggi: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Le tirage actuel : %1.</source>
        <translation>Il sorteggio attuale: %1.</translation>
    </message>
    <message>
        <source>Le mettre à la place ?</source>
        <translation>Metterlo al suo posto?</translation>
    </message>
    <message>
        <source>Tour %1</source>
        <translation>Turno %1</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punteggio</translation>
    </message>
</context>
<context>
    <name>Saison</name>
    <message>
        <source>Saison</source>
        <translation>Stagione</translation>
    </message>
    <message>
        <source>Du</source>
        <translation>Dal</translation>
    </message>
    <message>
        <source>Premier jour</source>
        <translation>Primo giorno</translation>
    </message>
    <message>
        <source>au</source>
        <translation>al</translation>
    </message>
    <message>
        <source>Dernier jour</source>
        <translation>Ultimo giorno</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Liste montrée</source>
        <translation>Elenco mostrato</translation>
    </message>
    <message>
        <source>Sommes de la saison</source>
        <translation>Somme della stagione</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Exporter...</source>
        <translation>Esporta...</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Tout montrer</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>Nombre d&apos;équipes, jour après jour</source>
        <translation>Numero di squadre, giorno per giorno</translation>
    </message>
</context>
<context>
    <name>VuePublique</name>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Chronomètre</source>
        <translation>Cronometro</translation>
    </message>
    <message>
        <source>Alarme dans</source>
        <translation>Sveglia tra</translation>
    </message>
    <message>
        <source>Alarme</source>
        <translation>Sveglia</translation>
    </message>
    <message>
        <source>Affichage public</source>
        <translation>Schermo pubblico</translation>
    </message>
</context>
</TS>
