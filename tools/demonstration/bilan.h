#pragma once

#include "engine/partie.h"
#include "plateau.h"

#include <QStringList>

#include <map>
#include <set>
#include <utility>
#include <vector>

namespace demonstration {

/// Reads the finished day back from its base file and reckons it anew, without any help of the program's own ranking.
class Bilan
{
public:
    /// \p avertis: the rounds at whose draw the program warned of a repeat.
    Bilan(const QString &base, const Plateau &plateau, const Options &options, const std::set<int> &avertis);

    /// The closing summary, line by line.
    QStringList lignes() const;
    /// What breaks the rules of the day; empty when all is well.
    const QStringList &fautes() const { return m_fautes; }

private:
    using Partie = moteur::Partie;
    using Tour = std::vector<Partie>;
    using Paire = std::pair<int, int>;
    struct Comptes
    {
        int parties = 0;
        int exempts = 0;
        int repetitions = 0;
        int memeClub = 0;
    };

    void lit(const QString &base);
    void verifieNombreDeTours();
    void verifieTour(int tour);
    void verifieRegles(int tour);
    void verifieScores(int tour);
    bool repetitionPermise(const Partie &r);
    void termineTour(int tour);
    bool echangePossible(const Tour &parties, const Partie &repetee) const;
    int niveauDe(const Partie &partie) const;
    bool memeClub(const Partie &partie) const;
    void faute(int tour, const QString &phrase);

    const Plateau &m_plateau;
    const Options &m_options;
    const std::set<int> &m_avertis;
    std::map<int, QString> m_clubs; ///< Club of each registered team, from the base.
    std::vector<Partie> m_parties;
    std::vector<Tour> m_tours;
    std::map<int, int> m_niveaux; ///< Matches won before the round in hand, of every team that has been drawn.
    std::set<Paire> m_paires; ///< Meetings before the round in hand.
    std::vector<Comptes> m_comptes;
    int m_silencieuses = 0; ///< Repeats that no warning told of.
    QStringList m_fautes;
};

} // namespace demonstration
