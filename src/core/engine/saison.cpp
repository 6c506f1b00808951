#include "engine/saison.h"

#include "donnees/clubs.h"
#include "engine/classement.h"
#include "engine/rangs.h"
#include "partage/alea.h"
#include "store/collation.h"

#include <QHash>

#include <algorithm>
#include <map>

using moteur::LigneClassement;
using moteur::Partie;
using store::Instruction;

namespace {

std::optional<int> optionnel(const Instruction &ligne, int colonne)
{
    return ligne.estNulle(colonne) ? std::nullopt : std::optional(int(ligne.nombre(colonne)));
}

struct MembreLu
{
    int equipe = 0;
    QString nom;
    QString licence;
    QString club;
};

/// Rows of one table, competition after competition.
class Lecture
{
public:
    Lecture(store::Database &base, const QString &sql)
        : m_lecture(base.native(), sql)
        , m_reste(m_lecture.avance())
    {
    }

    /// Hands each row of the competition \p concours to \p prend; competitions come in ascending order.
    template<typename Prend>
    void lit(qint32 concours, Prend prend)
    {
        for (; m_reste && m_lecture.nombre(0) <= concours; m_reste = m_lecture.avance()) {
            if (m_lecture.nombre(0) == concours)
                prend(m_lecture);
        }
    }

private:
    Instruction m_lecture;
    bool m_reste;
};

/// What one team has done in a competition.
struct BilanEquipe
{
    const LigneClassement *ligne = nullptr;
    int parties = 0;
    std::optional<int> place;
};

/// Sums under keys that are the same when they only differ in case, as the store finds them.
class Sommes
{
public:
    LigneSaison &ligne(const QString &cle)
    {
        auto connue = m_connues.constFind(cle);
        if (connue == m_connues.constEnd()) {
            const auto [place, nouvelle] = m_parOrdre.try_emplace(cle, m_lignes.size());
            if (nouvelle) {
                m_lignes.push_back({.cle = cle});
                m_dernieres.emplace_back();
            }
            connue = m_connues.insert(cle, place->second);
        }
        return m_lignes[*connue];
    }

    /// Teams come one after the other: a licence that stands twice in a team has played once.
    void ajoute(LigneSaison &ligne, qint32 concours, int equipe, const BilanEquipe &bilan)
    {
        const auto derniere =
            std::exchange(m_dernieres[std::size_t(&ligne - m_lignes.data())], std::pair(concours, equipe));
        if (derniere == std::pair(concours, equipe))
            return;
        ligne.concours += derniere.first == concours ? 0 : 1;
        ligne.parties += bilan.parties;
        ligne.gagnees += bilan.ligne->gagnées;
        ligne.pour += bilan.ligne->pp.value_or(0);
        ligne.contre += bilan.ligne->pc.value_or(0);
        if (bilan.place)
            ligne.meilleurePlace = std::min(*bilan.place, ligne.meilleurePlace.value_or(*bilan.place));
    }

    std::vector<LigneSaison> triees() &&
    {
        std::ranges::sort(m_lignes, [](const LigneSaison &a, const LigneSaison &b) {
            const auto merite = [](const LigneSaison &l) { return std::tuple(-l.gagnees, -l.ecart(), l.parties); };
            if (merite(a) != merite(b))
                return merite(a) < merite(b);
            return store::CompareFrancais(a.cle, b.cle) < 0;
        });
        return std::move(m_lignes);
    }

private:
    struct Avant
    {
        bool operator()(const QString &a, const QString &b) const { return store::CompareFrancais(a, b) < 0; }
    };

    std::vector<LigneSaison> m_lignes;
    std::map<QString, std::size_t, Avant> m_parOrdre;
    QHash<QString, std::size_t> m_connues;
    std::vector<std::pair<qint32, int>> m_dernieres; ///< Of each line, the competition and team counted last.
};

class Releve
{
public:
    void compte(const ConcoursJoue &joue, const std::vector<MembreLu> &membres, const std::vector<Partie> &parties)
    {
        const qint32 concours = joue.concours.numero;
        const std::map<int, BilanEquipe> equipes = bilans(parties);
        int precedente = -1;
        for (const MembreLu &membre : membres) {
            const auto equipe = equipes.find(membre.equipe);
            const bool premier = std::exchange(precedente, membre.equipe) != membre.equipe;
            if (premier)
                m_club = membre.club;
            if (equipe == equipes.end())
                continue;
            if (premier && !m_club.isEmpty() && !donnees::EstPanache(m_club))
                m_clubs.ajoute(m_clubs.ligne(m_club), concours, membre.equipe, equipe->second);
            if (!membre.licence.isEmpty()) {
                LigneSaison &ligne = m_licences.ligne(membre.licence);
                ligne.nom = membre.nom;
                ligne.club = m_club;
                m_licences.ajoute(ligne, concours, membre.equipe, equipe->second);
            }
        }
    }

    void rend(Saison &saison) &&
    {
        saison.clubs = std::move(m_clubs).triees();
        saison.licences = std::move(m_licences).triees();
    }

private:
    /// The teams that occur in a match, as the ranking has them.
    std::map<int, BilanEquipe> bilans(const std::vector<Partie> &parties)
    {
        AleaFixe sansEffet(0); // the order of a draw, which nobody asks for
        m_lignes = moteur::etablitClassement(parties, sansEffet);
        std::ranges::sort(m_lignes, moteur::avantAuRang);
        std::map<int, BilanEquipe> equipes;
        for (const LigneClassement &ligne : m_lignes)
            equipes[ligne.equipe].ligne = &ligne;
        bool complet = true;
        for (const Partie &partie : parties) {
            const bool finie = partie.equipe2 == 0 || (partie.score1 && partie.score2);
            complet = complet && finie;
            equipes[partie.equipe1].parties += finie ? 1 : 0;
            if (partie.equipe2 > 0)
                equipes[partie.equipe2].parties += finie ? 1 : 0;
        }
        if (complet) {
            int place = 0;
            for (const moteur::PlaceGenerale &generale : moteur::classementGeneral(m_lignes)) {
                place = generale.position.value_or(place);
                equipes[m_lignes[generale.ligne].equipe].place = place;
            }
        }
        return equipes;
    }

    std::vector<LigneClassement> m_lignes;
    QString m_club;
    Sommes m_clubs;
    Sommes m_licences;
};

/// Invalid for a competition without a date.
QDate jourDe(const donnees::Concours &concours)
{
    return concours.date.estNull() ? QDate() : concours.date.date();
}

bool retenu(const donnees::Concours &concours, const FiltreSaison &filtre)
{
    const QDate jour = jourDe(concours);
    if (filtre.depuis.isValid() && !(jour >= filtre.depuis))
        return false;
    if (filtre.jusqua.isValid() && (!jour.isValid() || jour > filtre.jusqua))
        return false;
    return filtre.type.isEmpty() || CodeType(concours.type) == CodeType(filtre.type);
}

} // namespace

QString CodeType(const QString &type)
{
    return type.section(u" - "_qs, 0, 0).trimmed();
}

Saison LitSaison(store::Database &base, const FiltreSaison &filtre, const std::function<void(int)> &avance)
{
    Saison saison;
    Releve releve;
    Lecture lecteurMembres(base,
                           u"select concours, equipe, nom, prenom, licence, societe from equipes "
                           u"order by concours, equipe, doublon"_qs);
    Lecture lecteurParties(base,
                           u"select concours, tour, equipe_1, equipe_2, score_1, score_2, repechage from scores "
                           u"order by concours, tour, equipe_1, rowid"_qs);
    for (donnees::Concours &concours : donnees::ListeConcours(base)) {
        const qint32 numero = concours.numero;
        if (!retenu(concours, filtre))
            continue;
        ConcoursJoue joue{.concours = std::move(concours)};
        std::vector<MembreLu> membres;
        lecteurMembres.lit(numero, [&](const Instruction &ligne) {
            const int equipe = int(ligne.nombre(1));
            joue.equipes += membres.empty() || membres.back().equipe != equipe ? 1 : 0;
            const QString nom = ligne.valeur(2).texte() + u' ' + ligne.valeur(3).texte();
            membres.push_back({equipe, nom.trimmed(), ligne.valeur(4).texte().trimmed(), ligne.valeur(5).texte()});
        });
        std::vector<Partie> parties;
        lecteurParties.lit(numero, [&](const Instruction &ligne) {
            parties.push_back({.tour = int(ligne.nombre(1)),
                               .equipe1 = int(ligne.nombre(2)),
                               .equipe2 = int(ligne.nombre(3)),
                               .score1 = optionnel(ligne, 4),
                               .score2 = optionnel(ligne, 5),
                               .repechage = optionnel(ligne, 6)});
            const Partie &partie = parties.back();
            joue.tours = std::max(joue.tours, partie.tour);
            joue.parties += partie.equipe2 > 0 && partie.score1 && partie.score2 ? 1 : 0;
        });
        releve.compte(joue, membres, parties);
        saison.concours.push_back(std::move(joue));
        if (avance)
            avance(int(saison.concours.size()));
    }
    std::move(releve).rend(saison);
    std::ranges::stable_sort(saison.concours, {}, [](const ConcoursJoue &joue) { return jourDe(joue.concours); });
    return saison;
}

std::vector<JourDeSaison> JoursDeSaison(const Saison &saison)
{
    std::vector<JourDeSaison> jours;
    for (const ConcoursJoue &joue : saison.concours) {
        const QDate jour = jourDe(joue.concours);
        if (!jour.isValid())
            continue;
        if (jours.empty() || jours.back().jour != jour)
            jours.push_back({.jour = jour});
        jours.back().equipes += joue.equipes;
    }
    return jours;
}
