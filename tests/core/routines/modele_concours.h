#pragma once

#include "modele_lent.h"

#include "engine/routines_tirage.h"

#include <QStringList>

#include <map>

namespace modele {

/// By level, then difference, both from the highest and an unknown difference last, then by number.
std::vector<moteur::LigneClassement> parRang(std::vector<moteur::LigneClassement> lignes);

/// One competition kept on paper beside the program: its teams, its sheets, and what the rules make of each act. It
/// reads nothing back; random numbers come from a copy of the program's source.
struct Concours
{
    struct Equipe
    {
        QString club;
        bool joue = true; ///< Takes part in the main bracket.
    };

    /// What a click on the draw button leads to, and what the last attempt has left behind.
    struct Clic
    {
        BilanLancement bilan;
        int essais = 0;
        std::vector<moteur::LigneClassement> classement; ///< In order of rank.
        Journal journal;
    };

    qint32 numero = 0;
    int joueurs = 3; ///< A team.
    bool repeche = false;
    int tourpri = 0; ///< In the file.
    int tourCourant = 0; ///< In the program.
    std::map<int, Equipe> equipes;
    std::vector<moteur::Partie> rencontres; ///< In the order of writing.

    Clic clique(SourceAleatoire &alea, bool reponse);
    /// In order of rank.
    std::vector<moteur::LigneClassement> classement(SourceAleatoire &alea) const;
    /// The match of the current round that a result for these two goes into, null when there is none.
    moteur::Partie *rencontre(int equipe1, int equipe2);
    void annuleTour();
    /// The last round that has been drawn goes on, whatever the file says.
    void rouvre();
    void annuleTirage();

    /// Whether new teams are taken, and where the first one goes when the draw is done.
    bool ferme() const;
    bool tour1Tire() const;
    moteur::Partie *exemption();
    /// A new team.
    void ajoute(int equipe, const QString &club);

    int attendus() const;
    bool resteUnTour() const;
    bool boutonVisible() const;
    bool termine() const { return tourCourant > 0 && attendus() == 0 && !boutonVisible(); }

private:
    void confirme(SourceAleatoire &alea, bool reponse, Clic &clic);
    moteur::TabTirage tire(SourceAleatoire &alea, Clic &clic) const;
    void ecritTour(const moteur::TabTirage &table, const std::vector<moteur::LigneClassement> &classement);
};

/// The first fault of the current round, which \p concours stands just behind the draw of; repeats pass where the
/// search for another pair has ended. Empty when all is well.
QString fauteDuTour(const Concours &concours, const Journal &journal);

} // namespace modele
