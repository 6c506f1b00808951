#pragma once

#include "impressions.h"
#include "operateur.h"
#include "photographe.h"
#include "plateau.h"

namespace demonstration {

/// What surrounds the registration: the file of known players, the lists, and a copy of the competition that is made
/// and taken away again.
class Registre
{
public:
    Registre(Programme &programme, Operateur &main, BoitesDuJour &boites, Photographe &photographe,
             Impressions &impressions, const Plateau &plateau);

    /// Types two players into the file of known players, calls one of them back from the list and prints the list.
    void preenregistre();
    /// Picks a known player from the list for the team that is about to be entered, and leaves the team unsaved.
    void choisitJoueur();
    /// Shows the list of teams, which writes its file, and prints it.
    void listeEquipes();
    /// Picks a team for the results from the list of teams.
    void choisitEquipe();
    /// Copies the competition and deletes the copy.
    void copieEtSupprime();

    /// File names of what the lists leave in the day's folder.
    static QStringList fichiers();

private:
    void saisitJoueur(const Joueur &joueur);
    qint64 nombre(const QString &lignes);
    void declenche(const QString &action);

    Programme &m_programme;
    Operateur &m_main;
    BoitesDuJour &m_boites;
    Photographe &m_photographe;
    Impressions &m_impressions;
    std::vector<Joueur> m_joueurs;
};

} // namespace demonstration
