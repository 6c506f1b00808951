<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="fr_FR">
<context>
    <name>AffichagePublic</name>
    <message>
        <source>Affichage public</source>
        <translation>Pantalla pública</translation>
    </message>
    <message>
        <source>Pages qui tournent</source>
        <translation>Páginas que se alternan</translation>
    </message>
    <message>
        <source>Tirage du tour</source>
        <translation>Sorteo de la ronda</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Partidas pendientes</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Últimos resultados</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Clasificación</translation>
    </message>
    <message>
        <source>Horloge, chronomètre et alarme</source>
        <translation>Reloj, cronómetro y alarma</translation>
    </message>
    <message>
        <source>Durée d&apos;une page</source>
        <translation>Duración de una página</translation>
    </message>
    <message>
        <source> secondes</source>
        <translation> segundos</translation>
    </message>
    <message>
        <source>Durée d&apos;une page, en secondes</source>
        <translation>Duración de una página, en segundos</translation>
    </message>
    <message>
        <source>Ecran</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Plein écran (F11)</source>
        <translation>Pantalla completa (F11)</translation>
    </message>
    <message>
        <source>Fond sombre</source>
        <translation>Fondo oscuro</translation>
    </message>
    <message>
        <source>Afficher</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Pause (F12)</source>
        <translation>Pausa (F12)</translation>
    </message>
    <message>
        <source>Page suivante</source>
        <translation>Página siguiente</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Ecran %1</source>
        <translation>Pantalla %1</translation>
    </message>
    <message>
        <source>L&apos;affichage tourne seul sur l&apos;autre écran pendant que vous travaillez ici.</source>
        <translation>La pantalla pública avanza sola en el otro monitor mientras usted trabaja aquí.</translation>
    </message>
    <message>
        <source>Un seul écran est branché : l&apos;affichage s&apos;ouvre dans une fenêtre ordinaire.</source>
        <translation>Hay un solo monitor conectado: la pantalla pública se abre en una ventana normal.</translation>
    </message>
    <message>
        <source>Cacher</source>
        <translation>Ocultar</translation>
    </message>
</context>
<context>
    <name>CopiesSecurite</name>
    <message>
        <source>Copies de sécurité</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Concours de la copie choisie</source>
        <translation>Concursos de la copia elegida</translation>
    </message>
    <message>
        <source>Restaurer</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Copier maintenant</source>
        <translation>Copiar ahora</translation>
    </message>
    <message>
        <source>Copier vers...</source>
        <translation>Copiar en...</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Par rapport à la base</source>
        <translation>Respecto a la base</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Concursos</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Equipos</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondas</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Base en service : %1.</source>
        <translation>Base en uso: %1.</translation>
    </message>
    <message>
        <source>lecture en cours</source>
        <translation>leyendo</translation>
    </message>
    <message>
        <source>copie illisible</source>
        <translation>copia ilegible</translation>
    </message>
    <message>
        <source>identique</source>
        <translation>idéntica</translation>
    </message>
    <message>
        <source>mêmes nombres, contenu différent</source>
        <translation>mismas cantidades, contenido distinto</translation>
    </message>
    <message>
        <source>La copie n&apos;a pas pu être faite : %1</source>
        <translation>No se ha podido hacer la copia: %1</translation>
    </message>
    <message>
        <source>La dernière copie contient déjà tout : %1.</source>
        <translation>La última copia ya lo contiene todo: %1.</translation>
    </message>
    <message>
        <source>Copie faite : %1.</source>
        <translation>Copia hecha: %1.</translation>
    </message>
    <message>
        <source>Copier la base vers</source>
        <translation>Copiar la base en</translation>
    </message>
    <message>
        <source>La copie %1 est écrite, relue et complète.</source>
        <translation>La copia %1 está escrita, releída y completa.</translation>
    </message>
    <message>
        <source>%1 est la base en service : choisissez un autre nom.</source>
        <translation>%1 es la base en uso: elija otro nombre.</translation>
    </message>
    <message>
        <source>Ce qui a été écrit dans %1 ne se relit pas : rien n&apos;y est resté. Essayez un autre support.</source>
        <translation>Lo escrito en %1 no se puede releer: no ha quedado nada allí. Pruebe otro soporte.</translation>
    </message>
    <message>
        <source>La copie %1 n&apos;a pas pu être écrite : regardez la place et les droits.</source>
        <translation>No se ha podido escribir la copia %1: revise el espacio y los permisos.</translation>
    </message>
    <message>
        <source>Restaurer la copie du %1 ?</source>
        <translation>¿Restaurar la copia del %1?</translation>
    </message>
    <message>
        <source>Elle contient %1.</source>
        <translation>Contiene %1.</translation>
    </message>
    <message>
        <source>Par rapport à la base : %1.</source>
        <translation>Respecto a la base: %1.</translation>
    </message>
    <message>
        <source>Une copie de la base actuelle est faite d&apos;abord : la restaurer à son tour annule ce geste.</source>
        <translation>Antes se hace una copia de la base actual: restaurarla a su vez anula este gesto.</translation>
    </message>
    <message>
        <source>La copie du %1 est en place.</source>
        <translation>La copia del %1 está en su sitio.</translation>
    </message>
    <message>
        <source>La base d&apos;avant est dans la copie %1.</source>
        <translation>La base anterior está en la copia %1.</translation>
    </message>
</context>
<context>
    <name>FormeSaison</name>
    <message>
        <source>Clubs</source>
        <translation>Clubes</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>Concours</source>
        <translation>Concursos</translation>
    </message>
    <message>
        <source>tous</source>
        <translation>todos</translation>
    </message>
    <message>
        <source>Saison du %1 au %2</source>
        <translation>Temporada del %1 al %2</translation>
    </message>
    <message>
        <source>Exporter la liste</source>
        <translation>Exportar la lista</translation>
    </message>
    <message>
        <source>La liste est dans %1.</source>
        <translation>La lista está en %1.</translation>
    </message>
    <message>
        <source>La liste n&apos;a pas pu être écrite : %1</source>
        <translation>No se pudo escribir la lista: %1</translation>
    </message>
    <message>
        <source>Concours comptés</source>
        <translation>Concursos contados</translation>
    </message>
</context>
<context>
    <name>ListesPubliques</name>
    <message>
        <source>Tirage du tour %1</source>
        <translation>Sorteo de la ronda %1</translation>
    </message>
    <message>
        <source>Rencontres attendues</source>
        <translation>Partidas pendientes</translation>
    </message>
    <message>
        <source>Derniers résultats</source>
        <translation>Últimos resultados</translation>
    </message>
    <message>
        <source>Classement</source>
        <translation>Clasificación</translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) inscrite(s)</source>
        <translation>
            <numerusform>%n equipo inscrito</numerusform>
            <numerusform>%n equipos inscritos</numerusform>
        </translation>
    </message>
    <message>
        <source>Concours terminé</source>
        <translation>Concurso terminado</translation>
    </message>
    <message>
        <source>Tour %1 / %2</source>
        <translation>Ronda %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>, manque %n résultat(s)</source>
        <translation>
            <numerusform>, falta %n resultado</numerusform>
            <numerusform>, faltan %n resultados</numerusform>
        </translation>
    </message>
    <message>
        <source>, complet</source>
        <translation>, completa</translation>
    </message>
    <message>
        <source>Dernier résultat : %1 bat %2</source>
        <translation>Último resultado: %1 gana a %2</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>exenta</translation>
    </message>
    <message>
        <source>Lancées</source>
        <translation>Empezadas</translation>
    </message>
    <message>
        <source>Pas encore lancées</source>
        <translation>Aún no empezadas</translation>
    </message>
    <message>
        <source>Equ.</source>
        <translation>Equ.</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
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
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Copies de sécurité</source>
        <translation>&amp;Copias de seguridad</translation>
    </message>
    <message>
        <source>&amp;Rapport du tirage</source>
        <translation>&amp;Informe del sorteo</translation>
    </message>
    <message>
        <source>&amp;Affichage public</source>
        <translation>&amp;Pantalla pública</translation>
    </message>
    <message>
        <source>&amp;Saison</source>
        <translation>&amp;Temporada</translation>
    </message>
</context>
<context>
    <name>ModeleSaison</name>
    <message>
        <source>Meilleure place</source>
        <translation>Mejor puesto</translation>
    </message>
</context>
<context>
    <name>MotsCopies</name>
    <message>
        <source>inconnue</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>départ du programme</source>
        <translation>inicio del programa</translation>
    </message>
    <message>
        <source>remise à zéro</source>
        <translation>puesta a cero</translation>
    </message>
    <message>
        <source>suppression</source>
        <translation>supresión</translation>
    </message>
    <message>
        <source>nouveau tirage</source>
        <translation>nuevo sorteo</translation>
    </message>
    <message>
        <source>annulation</source>
        <translation>anulación</translation>
    </message>
    <message>
        <source>restauration</source>
        <translation>restauración</translation>
    </message>
    <message>
        <source>à la demande</source>
        <translation>a petición</translation>
    </message>
    <message>
        <source>fichier disparu ou changé</source>
        <translation>archivo desaparecido o cambiado</translation>
    </message>
    <message numerus="yes">
        <source>%n concours de plus</source>
        <translation>
            <numerusform>%n concurso más</numerusform>
            <numerusform>%n concursos más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours de moins</source>
        <translation>
            <numerusform>%n concurso menos</numerusform>
            <numerusform>%n concursos menos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de plus</source>
        <translation>
            <numerusform>%n equipo más</numerusform>
            <numerusform>%n equipos más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s) de moins</source>
        <translation>
            <numerusform>%n equipo menos</numerusform>
            <numerusform>%n equipos menos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de plus</source>
        <translation>
            <numerusform>%n resultado más</numerusform>
            <numerusform>%n resultados más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s) de moins</source>
        <translation>
            <numerusform>%n resultado menos</numerusform>
            <numerusform>%n resultados menos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de plus</source>
        <translation>
            <numerusform>%n jugador conocido más</numerusform>
            <numerusform>%n jugadores conocidos más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n joueur(s) connu(s) de moins</source>
        <translation>
            <numerusform>%n jugador conocido menos</numerusform>
            <numerusform>%n jugadores conocidos menos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de plus</source>
        <translation>
            <numerusform>%n club más</numerusform>
            <numerusform>%n clubes más</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s) de moins</source>
        <translation>
            <numerusform>%n club menos</numerusform>
            <numerusform>%n clubes menos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n concurso</numerusform>
            <numerusform>%n concursos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n equipo</numerusform>
            <numerusform>%n equipos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n résultat(s)</source>
        <translation>
            <numerusform>%n resultado</numerusform>
            <numerusform>%n resultados</numerusform>
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
        <translation>Concursos</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Equipos</translation>
    </message>
    <message>
        <source>Résultats</source>
        <translation>Resultados</translation>
    </message>
</context>
<context>
    <name>MotsSaison</name>
    <message>
        <source>Concours</source>
        <translation>Concursos</translation>
    </message>
    <message>
        <source>Parties</source>
        <translation>Partidas</translation>
    </message>
    <message>
        <source>Gagnées</source>
        <translation>Ganadas</translation>
    </message>
    <message>
        <source>Pour</source>
        <translation>A favor</translation>
    </message>
    <message>
        <source>Contre</source>
        <translation>En contra</translation>
    </message>
    <message>
        <source>Ecart</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Lieu</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Catégorie</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Equipes</source>
        <translation>Equipos</translation>
    </message>
    <message>
        <source>Tours</source>
        <translation>Rondas</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Nom</source>
        <translation>Nombre</translation>
    </message>
    <message numerus="yes">
        <source>%n concours</source>
        <translation>
            <numerusform>%n concurso</numerusform>
            <numerusform>%n concursos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n équipe(s)</source>
        <translation>
            <numerusform>%n equipo</numerusform>
            <numerusform>%n equipos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n partie(s)</source>
        <translation>
            <numerusform>%n partida</numerusform>
            <numerusform>%n partidas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n club(s)</source>
        <translation>
            <numerusform>%n club</numerusform>
            <numerusform>%n clubes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n licence(s)</source>
        <translation>
            <numerusform>%n licencia</numerusform>
            <numerusform>%n licencias</numerusform>
        </translation>
    </message>
    <message>
        <source>N°</source>
        <translation>N.º</translation>
    </message>
</context>
<context>
    <name>RapportTirage</name>
    <message>
        <source>Rapport du tirage</source>
        <translation>Informe del sorteo</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>Ronda</translation>
    </message>
    <message>
        <source>Montrer après chaque tirage qui a quelque chose à signaler</source>
        <translation>Mostrar tras cada sorteo que tenga algo que señalar</translation>
    </message>
    <message>
        <source>Rencontres du tour</source>
        <translation>Partidas de la ronda</translation>
    </message>
    <message>
        <source>Refaire le tirage</source>
        <translation>Repetir el sorteo</translation>
    </message>
    <message>
        <source>Refaire jusqu&apos;au meilleur</source>
        <translation>Repetir hasta el mejor</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Fiches de partie</source>
        <translation>Fichas de partida</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Niveau</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Equipe</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Club</source>
        <translation>Club</translation>
    </message>
    <message>
        <source>Remarque</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>exempte pour la deuxième fois</source>
        <translation>exenta por segunda vez</translation>
    </message>
    <message>
        <source>exempte</source>
        <translation>exenta</translation>
    </message>
    <message>
        <source>évitable</source>
        <translation>evitable</translation>
    </message>
    <message>
        <source>inévitable</source>
        <translation>inevitable</translation>
    </message>
    <message>
        <source>déjà rencontrées au tour %1 (%2)</source>
        <translation>ya enfrentadas en la ronda %1 (%2)</translation>
    </message>
    <message>
        <source>même club (%1)</source>
        <translation>mismo club (%1)</translation>
    </message>
    <message>
        <source>%1 remontée du niveau %2</source>
        <translation>%1 subida del nivel %2</translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) déjà jouée(s)</source>
        <translation>
            <numerusform>%n partida ya jugada</numerusform>
            <numerusform>%n partidas ya jugadas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rencontre(s) d&apos;un même club</source>
        <translation>
            <numerusform>%n partida de un mismo club</numerusform>
            <numerusform>%n partidas de un mismo club</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucun tour n&apos;est tiré.</source>
        <translation>No se ha sorteado ninguna ronda.</translation>
    </message>
    <message>
        <source>Tour %1 : %2.</source>
        <translation>Ronda %1: %2.</translation>
    </message>
    <message>
        <source>Niveau %1 : une autre répartition aurait %2 défaut(s) au lieu de %3.</source>
        <translation>Nivel %1: otro reparto tendría %2 en vez de %3 de esas partidas.</translation>
    </message>
    <message>
        <source>Le tirage d&apos;avant : %1.</source>
        <translation>El sorteo anterior: %1.</translation>
    </message>
    <message>
        <source>Un résultat de ce tour est saisi : il ne se refait plus.</source>
        <translation>Ya hay un resultado de esta ronda: no se puede repetir.</translation>
    </message>
    <message>
        <source>Refaire le tirage du tour %1 ?</source>
        <translation>¿Repetir el sorteo de la ronda %1?</translation>
    </message>
    <message>
        <source>Le tirage actuel sera remplacé ; une copie en est gardée.</source>
        <translation>El sorteo actual se sustituirá; se guarda una copia.</translation>
    </message>
    <message>
        <source>Tirages essayés</source>
        <translation>Sorteos probados</translation>
    </message>
    <message numerus="yes">
        <source>Le meilleur de %n tirage(s) : %1.</source>
        <translation>
            <numerusform>El mejor de %n sorteo: %1.</numerusform>
            <numerusform>El mejor de %n sorteos: %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Le tirage actuel : %1.</source>
        <translation>El sorteo actual: %1.</translation>
    </message>
    <message>
        <source>Le mettre à la place ?</source>
        <translation>¿Ponerlo en su lugar?</translation>
    </message>
    <message>
        <source>Tour %1</source>
        <translation>Ronda %1</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Tanteo</translation>
    </message>
</context>
<context>
    <name>Saison</name>
    <message>
        <source>Saison</source>
        <translation>Temporada</translation>
    </message>
    <message>
        <source>Du</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Premier jour</source>
        <translation>Primer día</translation>
    </message>
    <message>
        <source>au</source>
        <translation>al</translation>
    </message>
    <message>
        <source>Dernier jour</source>
        <translation>Último día</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Liste montrée</source>
        <translation>Lista mostrada</translation>
    </message>
    <message>
        <source>Sommes de la saison</source>
        <translation>Sumas de la temporada</translation>
    </message>
    <message>
        <source>Copier</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Exporter...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>Imprimer</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Fermer</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Tout montrer</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Nombre d&apos;équipes, jour après jour</source>
        <translation>Número de equipos, día a día</translation>
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
        <translation>Cronómetro</translation>
    </message>
    <message>
        <source>Alarme dans</source>
        <translation>Alarma en</translation>
    </message>
    <message>
        <source>Alarme</source>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>Affichage public</source>
        <translation>Pantalla pública</translation>
    </message>
</context>
</TS>
