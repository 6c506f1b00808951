#pragma once

#include "app/alea.h"
#include "app/horloge.h"
#include "app/messages.h"
#include "engine/tirage_suivant.h"
#include "store/database.h"

#include <QDateTime>

#include <vector>

/// State that all screens share for one run. There is one object of it, made by Programme and passed on.
struct Partage
{
    Partage(const QString &dossier, SourceAleatoire &source, const Horloge &horlogeDuJour)
        : DossierProgramme(dossier)
        , alea(source)
        , horloge(horlogeDuJour)
    {
    }

    // Surroundings
    QString DossierProgramme; ///< Folder of the base and of the resources, without a separator at its end.
    SourceAleatoire &alea;
    const Horloge &horloge;

    // Store
    store::DBEngine moteur;
    store::Workspace *EspaceTravail = nullptr;
    store::Database BaseDonnees;
    bool AvecCopies = true; ///< Safety copies are made.

    // Current competition
    qint32 ConcoursCourant = 0; ///< 0 for none.
    QString DateConcours; ///< Already in the format of message 117.
    QString LieuConcours;
    QString CategorieConcours;
    bool AvecRepechage = false;
    qint16 TourCourant = 0; ///< Last round drawn, 0 before the first.
    qint16 NbJoueurs = 0; ///< Players a team.

    // Language
    TableMessages mes;
    qint16 LangueCourante = 1;
    QString Traducteur;
    QString IconeLangue; ///< Full path.

    // Draws
    moteur::TabTirage TabTirage; ///< Pairs between the draw and its writing.
    qint16 EssaisTirage = 0;

    // Toolbox
    std::vector<qint16> Tirages; ///< Numbers of the lottery: those still to be drawn come first.
    qint16 &RestantTirages = EssaisTirage; ///< How many are still to be drawn; one storage for two uses.
    QDateTime HeureAlarme;

    // Results
    bool ScoreReel = true; ///< The score in hand was typed, not given by a double click.
    bool AttendusAJour = false;
    bool JouesAJour = false;
    bool ClicGrille = true;

    // Registration
    QString FormeAppelante; ///< Name of the form that is taking a club or a player.
    QString ClubFiltre;
    bool PanacheeAutorisee = false;
    int ModeListeEquipes = 0; ///< 1 when the list of teams feeds the results.
    bool SelectionEnCours = false;
};
