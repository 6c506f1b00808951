#include "modele_lent.h"

#include "partage/alea.h"

#include <algorithm>

namespace modele {

namespace {

using moteur::LigneClassement;
using moteur::StatutTirage;

/// One row of the table of pairs, its cells numbered from left to right.
struct Cellules
{
    int c0 = 0; ///< Level of the first team: its wins, and 1 more when it was pulled up.
    int c1 = 0; ///< First team.
    QString c2; ///< Club of the first team.
    int c3 = 0; ///< Second team, 0 for a bye.
    QString c4; ///< Club of the second team, empty for a bye.
    int c5 = 0; ///< Level of the second team, 0 for a bye.
};

class Modele
{
public:
    Modele(const moteur::DonneesTirage &donnees, Journal &journal)
        : m_donnees(donnees)
        , m_journal(journal)
    {
    }

    moteur::TabTirage tire()
    {
        construit();
        for (int retours = 0;; ++retours) {
            if (m_donnees.tourpri == 1) {
                while (!clubs()) {}
            }
            repetitions();
            if (!m_change || m_donnees.tourpri != 1 || m_essaisClub >= 10 || retours >= 10)
                break;
            ++m_journal.retoursAuxClubs;
        }
        moteur::TabTirage table{m_statut, {}};
        for (int i = 1; i <= p(); ++i)
            table.lignes.push_back({T(i).c0, T(i).c1, T(i).c2, T(i).c3, T(i).c4, T(i).c5});
        return table;
    }

private:
    /// Number of pairs: they stand in rows 1 to p of the table T.
    int p() const { return int(m_table.size()) - 1; }
    Cellules &T(int i) { return m_table.at(std::size_t(i)); }

    LigneClassement &ligne(int equipe)
    {
        return *std::ranges::find(m_donnees.classement, equipe, &LigneClassement::equipe);
    }

    QString club(int equipe)
    {
        const auto place = std::ranges::find(m_donnees.classement, equipe, &LigneClassement::equipe);
        return m_donnees.clubs[std::size_t(place - m_donnees.classement.begin())];
    }

    /// All teams, best first: by level, then by difference (\p auRang) or by draw, then by team number.
    std::vector<int> parCle(bool auRang)
    {
        const auto cle = [auRang](const LigneClassement &l) {
            const int seconde = auRang ? l.ga.value_or(-1'000'000) : l.alea;
            return std::tuple(-l.pt, -seconde, l.equipe);
        };
        std::vector<LigneClassement> lignes(m_donnees.classement.begin(), m_donnees.classement.end());
        std::ranges::sort(lignes, {}, cle);
        std::vector<int> equipes;
        for (const LigneClassement &l : lignes)
            equipes.push_back(l.equipe);
        return equipes;
    }

    /// First team in drawing order that has not been read, 0 at the end.
    int courante()
    {
        for (const int equipe : parCle(false)) {
            if (!m_lues.contains(equipe))
                return equipe;
        }
        return 0;
    }

    void construit()
    {
        m_table.resize(1);
        while (int equipe = courante()) {
            m_lues.insert(equipe);
            Cellules cellules{ligne(equipe).pt, equipe, club(equipe), 0, QString(), 0};
            equipe = courante();
            if (equipe != 0) {
                if (ligne(equipe).pt != cellules.c0) {
                    remonte(equipe);
                    equipe = courante();
                }
                m_lues.insert(equipe);
                cellules.c3 = equipe;
                cellules.c4 = club(equipe);
                cellules.c5 = ligne(equipe).pt;
            }
            m_table.push_back(cellules);
        }
    }

    void remonte(int courant)
    {
        int meilleure = 0;
        for (const int equipe : parCle(true)) {
            if (ligne(equipe).pt == ligne(courant).pt && meilleure == 0)
                meilleure = equipe;
        }
        std::swap(ligne(courant).alea, ligne(meilleure).alea);
        m_remonte = meilleure;
        if (m_donnees.repeche) {
            ligne(meilleure).repechage = 1;
            if (courant != meilleure)
                ligne(courant).repechage = 0;
        }
        ligne(meilleure).pt += 1;
        ++m_journal.remontees;
    }

    bool heurt(int i) { return T(i).c4 != u"*Panachée"_qs && T(i).c4 == T(i).c2; }
    bool va(int i, int j) { return T(i).c4 != T(j).c4 && T(i).c4 != T(j).c2; }

    void echangeClubs(int i, int j)
    {
        std::swap(T(i).c3, T(j).c3);
        T(i).c4 = T(j).c4;
        T(j).c4 = T(i).c2;
    }

    /// Exchanges second teams until no pair is of one club, as far as this can be done. False when another team has
    /// been pulled up: to be called again.
    bool clubs()
    {
        if (p() < 1)
            return true;
        int i = 1;
        const int v = T(1).c0;
        while (T(i).c5 == v || T(i).c0 == v) {
            if (heurt(i)) {
                if (m_change)
                    ++m_essaisClub;
                int j = 1;
                while (j <= p() && (T(j).c5 == v || T(j).c0 == v) && !va(i, j))
                    ++j;
                if (j <= p() && (T(j).c5 == v || T(j).c0 == v)) {
                    echangeClubs(i, j);
                    ++i;
                } else if (remplace()) {
                    return false;
                } else {
                    m_statut = StatutTirage::MemeClub;
                    ++m_journal.clubsRestants;
                }
            }
            if (i >= p())
                break;
            ++i;
        }
        if (i <= p())
            clubsDuBas(i);
        return true;
    }

    void clubsDuBas(int f)
    {
        const int v = T(f).c0;
        for (int i = f; T(i).c0 == v; ++i) {
            if (heurt(i)) {
                int j = f;
                while (T(j).c5 == v && T(j).c0 == v) {
                    if (va(i, j)) {
                        echangeClubs(i, j);
                        break;
                    }
                    if (j == p()) {
                        m_statut = StatutTirage::MemeClub;
                        ++m_journal.clubsRestants;
                        break;
                    }
                    ++j;
                }
            }
            if (i == p())
                return;
        }
    }

    bool remplace()
    {
        if (m_remonte == 0)
            return false;
        const std::vector<int> rangs = parCle(true);
        auto place = std::ranges::find_if(rangs, [&](int e) { return ligne(e).pt == ligne(m_remonte).pt; });
        while (*place != m_remonte)
            ++place;
        ++place;
        if (place == rangs.end() || ligne(*place).pt != ligne(m_remonte).pt)
            return false;
        const int autre = *place;
        if (m_donnees.repeche) {
            ligne(m_remonte).repechage.reset();
            ligne(autre).repechage = 1;
        }
        std::vector<std::tuple<int *, QString *, int *>> places;
        for (int i = 1; i <= p(); ++i) {
            if (T(i).c1 == autre || T(i).c1 == m_remonte)
                places.emplace_back(&T(i).c1, &T(i).c2, &T(i).c0);
            if (T(i).c3 == autre || T(i).c3 == m_remonte)
                places.emplace_back(&T(i).c3, &T(i).c4, &T(i).c5);
        }
        std::swap(*std::get<0>(places.at(0)), *std::get<0>(places.at(1)));
        std::swap(*std::get<1>(places.at(0)), *std::get<1>(places.at(1)));
        std::swap(*std::get<2>(places.at(0)), *std::get<2>(places.at(1)));
        m_remonte = autre;
        ++m_journal.remplacees;
        return true;
    }

    int combien(int i)
    {
        return int(std::ranges::count_if(m_donnees.jouees, [&](const moteur::PaireJouee &jouee) {
            return normee(jouee.equipe1, jouee.equipe2) == normee(T(i).c1, T(i).c3);
        }));
    }

    void repetitions()
    {
        m_change = false;
        for (const moteur::PaireJouee &jouee : m_donnees.jouees) {
            for (int i = 1; i <= p(); ++i) {
                const bool laPaire = (T(i).c1 == jouee.equipe1 && T(i).c3 == jouee.equipe2)
                    || (T(i).c1 == jouee.equipe2 && T(i).c3 == jouee.equipe1);
                if (laPaire && !corrige(i))
                    break;
            }
        }
    }

    void abandonne(int i) { m_journal.abandonnees.insert(normee(T(i).c1, T(i).c3)); }

    /// Looks for another opponent for the first team of row \p i, whose pair has already met. False when the rows
    /// behind it are not to be looked at for this meeting.
    bool corrige(int i)
    {
        int d = i == p() || T(i + 1).c0 != T(i).c0 ? -1 : 1;
        if (i + d <= 0) {
            abandonne(i);
            return false;
        }
        bool repris = false;
        while (true) {
            const int r = i + d;
            if (T(r).c0 != T(i).c0) {
                ++m_journal.finsMuettes;
                abandonne(i);
                return true;
            }
            if (essaie(i, r))
                return true;
            ++d;
            const bool dehors = d != 0 && (i + d > p() || T(i + d).c0 != T(i).c0);
            if (dehors && repris)
                ++m_journal.secondsRetours;
            if (dehors)
                d = repris ? 0 : 1 - i;
            repris = repris || dehors;
            if (d == 0) {
                m_statut = StatutTirage::DejaRencontrees;
                ++m_journal.toursComplets;
                abandonne(i);
                return true;
            }
        }
    }

    bool essaie(int i, int r)
    {
        m_change = true;
        Cellules garde = T(i);
        T(i).c3 = T(r).c1;
        T(i).c4 = T(r).c2;
        T(i).c5 = T(r).c0;
        T(r).c1 = garde.c3;
        T(r).c2 = garde.c4;
        T(r).c0 = garde.c5;
        if (T(r).c1 == 0) {
            T(r) = Cellules{T(r).c5, T(r).c3, T(r).c4, 0, QString(), T(r).c0};
        }
        if (reussi(i, r))
            return true;
        std::swap(T(i).c3, T(r).c3);
        std::swap(T(i).c4, T(r).c4);
        std::swap(T(i).c5, T(r).c5);
        return reussi(i, r);
    }

    bool reussi(int i, int r)
    {
        if (combien(r) > 0)
            m_journal.crees.insert(normee(T(r).c1, T(r).c3));
        if (combien(i) > 0)
            return false;
        m_statut = StatutTirage::RienASignaler;
        return true;
    }

    moteur::DonneesTirage m_donnees;
    Journal &m_journal;
    std::vector<Cellules> m_table;
    std::set<int> m_lues;
    StatutTirage m_statut = StatutTirage::RienASignaler;
    int m_remonte = 0;
    int m_essaisClub = 0;
    bool m_change = false;
};

} // namespace

Paire normee(int equipe1, int equipe2)
{
    return {std::min(equipe1, equipe2), std::max(equipe1, equipe2)};
}

moteur::TabTirage tirageSuivant(const moteur::DonneesTirage &donnees, Journal &journal)
{
    return Modele(donnees, journal).tire();
}

std::vector<moteur::Partie> tirageTour1(const std::vector<moteur::EquipeInscrite> &equipes, SourceAleatoire &alea)
{
    const int n = int(equipes.size());
    if (n <= 1)
        return {};
    std::vector<moteur::EquipeInscrite> table(std::size_t(n) + 1);
    std::vector<int> prise(std::size_t(n) + 1, 0);
    const auto tirage = [&](auto refuse) {
        int r = AleaEntre(alea, 1, n);
        while (refuse(std::size_t(r)))
            r = AleaEntre(alea, 1, n);
        return std::size_t(r);
    };
    for (const moteur::EquipeInscrite &equipe : equipes)
        table[tirage([&](std::size_t r) { return table[r].equipe != 0; })] = equipe;

    std::vector<std::vector<std::size_t>> paires(std::size_t(n) / 2 + 1, std::vector<std::size_t>(2, 0));
    for (std::size_t k = 0; k < std::size_t(n); ++k) {
        const std::size_t r = tirage([&](std::size_t libre) { return prise[libre] != 0; });
        prise[r] = 1;
        paires[k / 2][k % 2] = r;
    }

    const std::size_t fin = std::size_t(n % 2 == 1 ? n / 2 : n / 2 - 1);
    for (std::size_t s = 0; s < 2; ++s) {
        for (std::size_t i = 0; i <= fin; ++i) {
            const QString a = table[paires[i][s]].club;
            const QString b = table[paires[i][1 - s]].club;
            if (a.toUpper() != b.toUpper() || a.toUpper() == u"*PANACHÉE"_qs)
                continue;
            for (std::size_t j = 0; j <= fin; ++j) {
                if (j != i && a != table[paires[j][s]].club && a != table[paires[j][1 - s]].club) {
                    std::swap(paires[i][s], paires[j][s]);
                    break;
                }
            }
        }
    }

    std::vector<moteur::Partie> rencontres;
    for (std::size_t i = 0; i <= fin; ++i) {
        const bool exempt = n % 2 == 1 && i == fin;
        rencontres.push_back({.tour = 1,
                              .rencontre = int(i) + 1,
                              .equipe1 = table[paires[i][0]].equipe,
                              .equipe2 = exempt ? 0 : table[paires[i][1]].equipe});
    }
    return rencontres;
}

} // namespace modele
