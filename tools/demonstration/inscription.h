#pragma once

#include "operateur.h"
#include "photographe.h"
#include "plateau.h"

namespace demonstration {

/// The registration table: takes the teams of the day in through `Eequipes`.
class Inscription
{
public:
    Inscription(Programme &programme, Operateur &operateur, BoitesDuJour &boites, Photographe &photographe);

    /// Opens the form and takes \p equipe in, ready to store it.
    void ouvre();
    /// Types a team and stores it under the number that the form proposes, which must be the team's.
    void inscrit(const EquipeDuJour &equipe);
    /// Calls a team back by its number and mends the name of its first player.
    void corrige(const EquipeDuJour &equipe);
    /// Ends the day unless the team stands in the base as it came in, \p nom being the name of its first player.
    void verifieBase(const EquipeDuJour &equipe, const QString &nom) const;

private:
    void saisitJoueur(const EquipeDuJour &equipe, int place);
    void saisitClub(const EquipeDuJour &equipe);
    void enregistre();
    void photographie(const EquipeDuJour &equipe);

    Programme &m_programme;
    Operateur &m_main;
    BoitesDuJour &m_boites;
    Photographe &m_photographe;
};

} // namespace demonstration
