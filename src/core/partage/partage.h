#pragma once

#include "partage/alea.h"
#include "partage/horloge.h"
#include "partage/messages.h"
#include "partage/tab_tirage.h"
#include "store/database.h"

/// State that all screens share for one run: the base, the competition, the language. There is one object of it, made
/// by Programme and passed on. What some forms alone need, they keep.
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
    store::DBEngine moteurBase;
    store::Workspace *EspaceTravail = nullptr;
    store::Database BaseDonnees;
    bool AvecCopies = true; ///< Safety copies are made.
    store::EtatFichier EtatBaseDit =
        store::EtatFichier::Intact; ///< State of the base's file, as the operator knows it.

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
    qint16 &RestantTirages = EssaisTirage; ///< Numbers left to the lottery of the toolbox; one storage for two uses.
};
