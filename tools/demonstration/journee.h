#pragma once

#include "affichage.h"
#include "app/programme.h"
#include "boites_du_jour.h"
#include "hasard.h"
#include "horloge_du_jour.h"
#include "impressions.h"
#include "inscription.h"
#include "operateur.h"
#include "options.h"
#include "outils.h"
#include "photographe.h"
#include "plateau.h"
#include "registre.h"
#include "resultats.h"
#include "visite.h"

#include <set>

namespace demonstration {

/// A whole day at the organiser's table, from the start of the program to the last result.
class Journee
{
public:
    /// \p options.dossier holds a fresh base and the pictures' place.
    Journee(const Options &options, const Plateau &plateau, Hasard &hasard);

    /// Plays the day. Throws Incident where it does not go as it should.
    void joue();
    /// Closes the program, and with it the base.
    void termine() { m_programme.termine(); }

    /// Rounds at whose draw the program warned of a repeat.
    const std::set<int> &avertis() const { return m_avertis; }

private:
    void demarre();
    void prevoitBoites();
    void creeConcours();
    void inscritEquipes();
    void inscritRetardataire();
    void joueTours();
    void tireTour();

    Options m_options;
    const Plateau &m_plateau;
    Photographe m_photographe;
    BoitesDuJour m_boites;
    AleaFixe m_alea;
    HorlogeDuJour m_horloge;
    Programme m_programme;
    Operateur m_main;
    Inscription m_inscription;
    Impressions m_impressions;
    Registre m_registre;
    Outils m_outils;
    Affichage m_affichage;
    Visite m_visite;
    Resultats m_resultats;
    std::set<int> m_avertis;
};

} // namespace demonstration
