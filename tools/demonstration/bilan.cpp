#include "bilan.h"

#include "partage/base.h"
#include "pilote/regles.h"
#include "store/database.h"

#include <algorithm>

namespace demonstration {

namespace {

std::pair<int, int> paire(int equipe1, int equipe2)
{
    return std::minmax(equipe1, equipe2);
}

} // namespace

Bilan::Bilan(const QString &base, const Plateau &plateau, const Options &options, const std::set<int> &avertis)
    : m_plateau(plateau)
    , m_options(options)
    , m_avertis(avertis)
{
    lit(base);
    verifieNombreDeTours();
    for (int tour = 1; tour <= int(m_tours.size()); ++tour)
        verifieTour(tour);
}

void Bilan::lit(const QString &base)
{
    store::Database ouverte = store::DBEngine().Workspaces(0).OpenDatabase(base, false, false, connexionBase);
    store::Recordset equipes =
        ouverte.OpenRecordset(u"select * from equipes where concours = 1 and doublon = 0", store::dbOpenSnapshot);
    for (; !equipes.Eof(); equipes.MoveNext())
        m_clubs[int(equipes[u"equipe"].entier())] = equipes[u"societe"].texte();
    store::Recordset scores = ouverte.OpenRecordset(u"select * from scores where concours = 1", store::dbOpenSnapshot);
    for (; !scores.Eof(); scores.MoveNext()) {
        const size_t tour = size_t(scores[u"tour"].entier());
        m_tours.resize(std::max(m_tours.size(), tour));
        const auto score = [&](QStringView champ) {
            return scores[champ].estNull() ? std::nullopt : std::optional(int(scores[champ].entier()));
        };
        m_parties.push_back({.tour = int(tour),
                             .equipe1 = int(scores[u"Equipe_1"].entier()),
                             .equipe2 = int(scores[u"Equipe_2"].entierOu(0)),
                             .score1 = score(u"score_1"),
                             .score2 = score(u"score_2")});
        m_tours[tour - 1].push_back(m_parties.back());
    }
}

void Bilan::faute(int tour, const QString &phrase)
{
    m_fautes += u"Tour %1 : %2"_qs.arg(tour).arg(phrase);
}

/// A round follows as long as the teams would fill the table of a knock-out with one more; the second chance adds one.
void Bilan::verifieNombreDeTours()
{
    int attendus = 1;
    for (int places = m_options.repeche ? 2 : 4; places <= m_options.equipes; places *= 2)
        ++attendus;
    if (int(m_tours.size()) != attendus)
        faute(int(m_tours.size()), u"la journée devait compter %1 tours."_qs.arg(attendus));
    if (int(m_clubs.size()) != m_options.equipes)
        faute(0, u"%1 équipes inscrites au lieu de %2."_qs.arg(m_clubs.size()).arg(m_options.equipes));
    for (const EquipeDuJour &equipe : m_plateau.equipes()) {
        if (m_clubs[equipe.numero] != equipe.club)
            faute(0, u"l'équipe %1 n'est pas sous son club."_qs.arg(equipe.numero));
    }
}

void Bilan::verifieTour(int tour)
{
    m_comptes.emplace_back();
    verifieRegles(tour);
    verifieScores(tour);
    termineTour(tour);
}

/// The first draw may leave a team out, when the field is odd and the bye has been exchanged.
void Bilan::verifieRegles(int tour)
{
    for (const Partie &r : m_parties) {
        if (r.tour == tour && (!m_clubs.contains(r.equipe1) || (r.equipe2 > 0 && !m_clubs.contains(r.equipe2))))
            faute(tour, u"une équipe de %1 - %2 n'est pas inscrite."_qs.arg(r.equipe1).arg(r.equipe2));
    }
    const QString constat =
        pilote::fauteDuTour(m_parties, tour, {[&](const Partie &r) { return repetitionPermise(r); }});
    if (!constat.isEmpty())
        faute(tour, constat);
}

void Bilan::verifieScores(int tour)
{
    for (const Partie &r : m_tours[size_t(tour) - 1]) {
        if (r.equipe2 == 0)
            continue;
        if (!r.score1 || !r.score2)
            faute(tour, u"le résultat %1 - %2 manque."_qs.arg(r.equipe1).arg(r.equipe2));
        else if ((r.score1 == moteur::scoreGagnant) == (r.score2 == moteur::scoreGagnant))
            faute(tour, u"le résultat %1 - %2 n'a pas un gagnant."_qs.arg(r.equipe1).arg(r.equipe2));
    }
}

/// A repeat is told of, or could not be helped. The draw looks for another opponent in the rows that follow and then
/// from the top of its table, as long as the level stays the same: only in the highest level has it seen every pair,
/// and in the others a repeat may stand untold.
bool Bilan::repetitionPermise(const Partie &r)
{
    int plusHaut = 0;
    for (const auto &[equipe, niveau] : m_niveaux)
        plusHaut = std::max(plusHaut, niveau);
    ++m_comptes.back().repetitions;
    if (m_avertis.contains(r.tour))
        return true;
    ++m_silencieuses;
    return niveauDe(r) < plusHaut || !echangePossible(m_tours[size_t(r.tour) - 1], r);
}

/// Level of a pair: that of its better team.
int Bilan::niveauDe(const Partie &partie) const
{
    const int premier = m_niveaux.at(partie.equipe1);
    return partie.equipe2 == 0 ? premier : std::max(premier, m_niveaux.at(partie.equipe2));
}

/// Whether another pair of the same level could exchange a team with \p repetee so that neither would be a repeat.
bool Bilan::echangePossible(const Tour &parties, const Partie &repetee) const
{
    const auto nouvelle = [this](int equipe1, int equipe2) { return !m_paires.contains(paire(equipe1, equipe2)); };
    return std::ranges::any_of(parties, [&](const Partie &autre) {
        if (autre.equipe1 == repetee.equipe1 || niveauDe(autre) != niveauDe(repetee))
            return false;
        return (nouvelle(repetee.equipe1, autre.equipe1) && nouvelle(repetee.equipe2, autre.equipe2))
            || (nouvelle(repetee.equipe1, autre.equipe2) && nouvelle(repetee.equipe2, autre.equipe1));
    });
}

bool Bilan::memeClub(const Partie &partie) const
{
    if (partie.equipe2 == 0)
        return false;
    const QString club = m_clubs.at(partie.equipe1);
    return club.compare(m_clubs.at(partie.equipe2), Qt::CaseInsensitive) == 0 && club != u"*Panachée";
}

void Bilan::termineTour(int tour)
{
    Comptes &comptes = m_comptes.back();
    for (const Partie &r : m_tours[size_t(tour) - 1]) {
        m_paires.insert(paire(r.equipe1, r.equipe2));
        comptes.exempts += r.equipe2 == 0;
        comptes.parties += r.equipe2 != 0;
        comptes.memeClub += memeClub(r);
        const bool premiere = r.equipe2 == 0 || r.score1 == moteur::scoreGagnant;
        m_niveaux[r.equipe1] += premiere;
        if (r.equipe2 != 0)
            m_niveaux[r.equipe2] += !premiere && r.score2 == moteur::scoreGagnant;
    }
}

QStringList Bilan::lignes() const
{
    Comptes total;
    QStringList parTour;
    for (size_t i = 0; i < m_comptes.size(); ++i) {
        const Comptes &c = m_comptes[i];
        total.parties += c.parties;
        total.exempts += c.exempts;
        total.repetitions += c.repetitions;
        total.memeClub += c.memeClub;
        parTour += u"  tour %1 : %2 rencontres, exempts %3, répétées %4, même club %5"_qs.arg(i + 1)
                       .arg(c.parties)
                       .arg(c.exempts)
                       .arg(c.repetitions)
                       .arg(c.memeClub);
    }
    QStringList lignes{
        u"Équipes : %1 ; tours : %2 ; rencontres : %3"_qs.arg(m_clubs.size()).arg(m_tours.size()).arg(total.parties),
        u"Exempts : %1 ; rencontres répétées : %2, dont %3 sans avertissement ; tours avertis : %4"_qs
            .arg(total.exempts)
            .arg(total.repetitions)
            .arg(m_silencieuses)
            .arg(m_avertis.size()),
        u"Rencontres entre équipes d'un même club : %1"_qs.arg(total.memeClub)};
    if (const size_t oubliees = m_clubs.size() - m_niveaux.size(); oubliees > 0)
        lignes += u"Équipes que le premier tirage a laissées de côté : %1"_qs.arg(oubliees);
    return lignes + parTour;
}

} // namespace demonstration
