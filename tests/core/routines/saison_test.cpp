#include "modele_concours.h"
#include "salle.h"

#include "donnees/inscription.h"
#include "engine/controle_tours.h"
#include "engine/routines_resultats.h"
#include "engine/routines_tirage.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <algorithm>
#include <deque>
#include <iostream>
#include <set>

using donnees::EtatTirage;
using donnees::Retardataire;
using moteur::LigneClassement;
using moteur::Partie;

// Seasons invented from a seed are played through the engine and the store, and compared after every act with the same
// competitions kept on paper. VARLOTOUR_GRAINE=N plays season N alone and tells its acts; VARLOTOUR_SAISON=S plays
// seasons for S seconds, from season N on with both.

namespace {

constexpr quint32 saisonsOrdinaires = 11;

struct Discipline
{
    QString type;
    int joueurs;
};

const Discipline disciplines[] = {{u"1 - Doublettes"_qs, 2}, {u"2 - Triplettes"_qs, 3}, {u"3 - Tête-à-tête"_qs, 1}};

std::string texte(const std::optional<int> &valeur)
{
    return valeur ? std::to_string(*valeur) : "-";
}

std::string texte(const Partie &r)
{
    return std::to_string(r.tour) + '/' + std::to_string(r.rencontre) + ' ' + std::to_string(r.equipe1) + '-'
        + std::to_string(r.equipe2) + ' ' + texte(r.score1) + ':' + texte(r.score2) + ' ' + texte(r.repechage);
}

std::string texte(const LigneClassement &l)
{
    return std::to_string(l.equipe) + " +" + std::to_string(l.gagnées) + " -" + std::to_string(l.perdues) + " pt "
        + std::to_string(l.pt) + ' ' + texte(l.pp) + '/' + texte(l.pc) + '/' + texte(l.ga) + " alea "
        + std::to_string(l.alea) + ' ' + texte(l.repechage);
}

/// Equal, or the first row that differs.
template<typename T>
testing::AssertionResult memes(const std::vector<T> &programme, const std::vector<T> &papier)
{
    const auto [p, m] = std::ranges::mismatch(programme, papier);
    if (p == programme.end() && m == papier.end())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "row " << p - programme.begin() << ": program "
                                       << (p == programme.end() ? "ends" : texte(*p)) << ", paper "
                                       << (m == papier.end() ? "ends" : texte(*m));
}

/// A season: one file, some competitions, one operator who does what operators do, well or badly.
class Saison
{
public:
    Saison(quint32 graine, bool raconte)
        : m_raconte(raconte)
        , m_sort(graine)
        , m_salle(graine)
    {
        m_salle.partage.AvecCopies = false;
        m_salle.native().executeScript(u"pragma synchronous = off"_qs); // nothing here is about the disk
    }

    void joue()
    {
        for (int reste = entre(16, 28); reste > 0 && !testing::Test::HasFailure(); --reste) {
            etape("inscription", &Saison::inscrit);
            joueConcours();
        }
        for (std::size_t place = 0; place < m_concours.size() && !testing::Test::HasFailure(); ++place) {
            m_courant = &m_concours[place];
            etape("relecture", &Saison::rouvre);
        }
    }

    std::set<QString> vus; ///< What has come up.

private:
    struct Acte
    {
        const char *nom;
        int poids;
        bool (Saison::*fait)();
    };

    int entre(int bas, int haut) { return bas + int(m_sort() % quint32(haut - bas + 1)); }
    bool chance(int pourcent) { return entre(1, 100) <= pourcent; }
    Partage &partage() { return m_salle.partage; }

    void joueConcours();
    bool etape(const char *nom, bool (Saison::*acte)());
    void verifie();
    void verifieClassement();

    bool inscrit();
    bool reprend();
    bool rouvre();
    bool changeRepeche();
    bool saisitResultats();
    bool corrigeResultat();
    bool annuleTour();
    bool annuleTirage();
    bool ajouteEquipe();
    bool retireEquipe();
    bool corrigeEquipe();
    bool clique();

    void saisit(const Partie &match);
    donnees::Equipe fiche(int equipe, const QString &club) const;
    QString club();
    int equipeAuHasard();

    bool m_raconte;
    std::mt19937 m_sort;
    Salle m_salle;
    std::deque<modele::Concours> m_concours;
    modele::Concours *m_courant = nullptr;
    Melange m_melange;
    bool m_sansVainqueur = false; ///< Matches without a 13 come in, as an old file may hold them.
    bool m_impatient = false; ///< Draws before all results are in, and beyond the last round.
    bool m_relance = false; ///< A cancelled draw shows the button, whatever else.
    int m_etape = 0;
};

void Saison::joueConcours()
{
    static constexpr Acte tous[] = {
        {"clic", 14, &Saison::clique},
        {"résultats", 12, &Saison::saisitResultats},
        {"correction", 3, &Saison::corrigeResultat},
        {"tour annulé", 1, &Saison::annuleTour},
        {"tirage annulé", 1, &Saison::annuleTirage},
        {"retardataire", 4, &Saison::ajouteEquipe},
        {"retrait", 1, &Saison::retireEquipe},
        {"équipe corrigée", 2, &Saison::corrigeEquipe},
        {"repêchage changé", 1, &Saison::changeRepeche},
        {"écran rouvert", 1, &Saison::rouvre},
        {"autre concours", 1, &Saison::reprend},
    };
    int total = 0;
    for (const Acte &acte : tous)
        total += acte.poids;
    for (int reste = entre(10, 60); reste > 0 && !testing::Test::HasFailure();) {
        if (m_courant->termine() && chance(50))
            return;
        int de = entre(0, total - 1);
        const Acte *acte = tous;
        for (; de >= acte->poids; ++acte)
            de -= acte->poids;
        reste -= etape(acte->nom, acte->fait);
    }
}

/// Does one act and compares; false when there was nothing to do.
bool Saison::etape(const char *nom, bool (Saison::*acte)())
{
    SCOPED_TRACE(testing::Message() << "step " << ++m_etape << ", " << nom);
    if (!(this->*acte)())
        return false;
    if (m_raconte)
        std::cerr << m_etape << ' ' << nom << ", competition " << m_courant->numero << ", round "
                  << m_courant->tourCourant << ", teams " << m_courant->equipes.size() << '\n';
    if (!testing::Test::HasFailure())
        verifie();
    return true;
}

void Saison::verifie()
{
    const QString numero = QString::number(m_courant->numero);
    ASSERT_TRUE(memes(m_salle.scores(), m_courant->rencontres));
    ASSERT_EQ(m_salle.tourpri(), m_courant->tourpri);
    ASSERT_EQ(partage().TourCourant, m_courant->tourCourant);
    ASSERT_EQ(partage().AvecRepechage, m_courant->repeche);
    const qint64 joueurs = m_salle.nombre(u"select count(*) from equipes where concours = "_qs + numero);
    ASSERT_EQ(joueurs, qint64(m_courant->equipes.size()) * m_courant->joueurs);
    ASSERT_EQ(moteur::resteUnTour(int(joueurs), partage().NbJoueurs, partage().TourCourant, partage().AvecRepechage),
              m_courant->resteUnTour());
    verifieClassement();
}

void Saison::verifieClassement()
{
    AleaFixe alea = m_salle.alea;
    CalculClassement(partage(), QString::number(m_courant->numero));
    ASSERT_TRUE(memes(m_salle.tbclass(), m_courant->classement(alea)));
}

bool Saison::inscrit()
{
    const int grandeur = entre(1, 100);
    const int nombre = entre(2, grandeur <= 25 ? 6 : grandeur <= 70 ? 24 : grandeur <= 97 ? 70 : 300);
    m_melange = {.clubs = entre(1, 12),
                 .pourcentHote = chance(50) ? 45 : 0,
                 .pourcentPanache = chance(50) ? 15 : 0,
                 .pourcentSans = chance(80) ? 0 : 20,
                 .casseMelee = chance(25)};
    m_sansVainqueur = chance(25);
    m_impatient = chance(10);
    const Discipline &discipline = disciplines[entre(0, 2)];
    const auto equipes = equipesMelangees(nombre, m_melange, m_sort);
    m_courant = &m_concours.emplace_back();
    m_courant->joueurs = discipline.joueurs;
    m_courant->repeche = chance(50);
    m_courant->numero = m_salle.inscrit({.type = discipline.type, .repeche = m_courant->repeche, .equipes = equipes});
    for (const moteur::EquipeInscrite &equipe : equipes)
        m_courant->equipes[equipe.equipe] = {equipe.club, !chance(2)};
    for (const auto &[equipe, inscrite] : m_courant->equipes) {
        if (!inscrite.joue)
            partage().BaseDonnees.Execute(
                u"update evolution set principal=0 where concours=%1 and equipe=%2"_qs.arg(m_courant->numero)
                    .arg(equipe));
    }
    return true;
}

/// Another of the last competitions, over or not.
bool Saison::reprend()
{
    const int dernier = int(m_concours.size()) - 1;
    m_courant = &m_concours[std::size_t(entre(std::max(dernier - 2, 0), dernier))];
    return rouvre();
}

bool Saison::rouvre()
{
    m_courant->rouvre();
    m_salle.choisit(m_courant->numero);
    m_relance = false;
    return true;
}

bool Saison::changeRepeche()
{
    store::Recordset concours = partage().BaseDonnees.OpenRecordset(u"concours", store::dbOpenTable);
    concours.Index(u"primarykey");
    concours.Seek(u"=", {m_courant->numero});
    concours.Edit();
    concours[u"repeche"] = m_courant->repeche = !m_courant->repeche;
    concours.Update();
    return rouvre();
}

/// Some of the results that are missing, or all of them, in the order in which they come to the table.
bool Saison::saisitResultats()
{
    std::vector<Partie> attendus;
    std::ranges::copy_if(m_courant->rencontres, std::back_inserter(attendus),
                         [](const Partie &r) { return r.equipe2 > 0 && !r.score1; });
    std::ranges::shuffle(attendus, m_sort);
    if (attendus.empty())
        return false;
    if (chance(30))
        attendus.resize(attendus.size() / 2);
    partage().BaseDonnees.EcritEnGroupe([&] {
        for (const Partie &match : attendus)
            saisit(match);
    });
    return true;
}

/// A match that comes up again; that of an earlier round cannot be stored.
bool Saison::corrigeResultat()
{
    if (m_courant->rencontres.empty())
        return false;
    const int place = entre(0, int(m_courant->rencontres.size()) - 1);
    const Partie match = m_courant->rencontres[std::size_t(place)];
    if (match.equipe2 > 0)
        saisit(match);
    return match.equipe2 > 0;
}

void Saison::saisit(const Partie &match)
{
    int scores[] = {13, chance(10) ? entre(-3, -1) : entre(0, 12)};
    if (m_sansVainqueur && chance(8))
        scores[0] = entre(-3, 13);
    if (chance(50))
        std::swap(scores[0], scores[1]);
    Partie *attendue = m_courant->rencontre(match.equipe1, match.equipe2);
    if (attendue) {
        attendue->score1 = scores[0];
        attendue->score2 = scores[1];
    }
    EXPECT_EQ(m_salle.saisit(match.equipe1, match.equipe2, QString::number(scores[0]), QString::number(scores[1])),
              attendue != nullptr);
}

bool Saison::annuleTour()
{
    if (m_courant->tourCourant < (chance(90) ? 1 : 0))
        return false;
    m_courant->annuleTour();
    AnnuleTour(m_salle.partage);
    m_relance = true;
    if (chance(30))
        rouvre();
    return true;
}

bool Saison::annuleTirage()
{
    if (chance(60))
        return false;
    m_courant->annuleTirage();
    AnnuleTirage(m_salle.partage);
    m_relance = true;
    return true;
}

donnees::Equipe Saison::fiche(int equipe, const QString &club) const
{
    const donnees::Membre membre{u"Nom"_qs, u"Prénom"_qs, u"L%1"_qs.arg(equipe)};
    return {m_courant->numero, equipe, club, std::vector<donnees::Membre>(std::size_t(m_courant->joueurs), membre)};
}

QString Saison::club()
{
    return equipesMelangees(1, m_melange, m_sort).front().club;
}

int Saison::equipeAuHasard()
{
    return m_courant->equipes.empty()
        ? 0
        : std::next(m_courant->equipes.begin(), entre(0, int(m_courant->equipes.size()) - 1))->first;
}

bool Saison::ajouteEquipe()
{
    EtatTirage etat = EtatTirage::PasTire;
    if (m_courant->tour1Tire())
        etat = m_courant->ferme()               ? EtatTirage::Commence
            : m_courant->exemption() != nullptr ? EtatTirage::Exemption
                                                : EtatTirage::SansExemption;
    EXPECT_EQ(donnees::EtatDuTirage(partage().BaseDonnees, m_courant->numero), etat);
    vus.insert(u"entrée %1"_qs.arg(int(etat)));
    if (etat == EtatTirage::Commence)
        return false;
    const int numero = m_courant->equipes.empty() ? 1 : m_courant->equipes.rbegin()->first + 1;
    EXPECT_EQ(donnees::PlusHautNumero(partage().BaseDonnees, m_courant->numero).value_or(0) + 1, numero);
    const int adversaire = etat == EtatTirage::Exemption ? m_courant->exemption()->equipe1 : 0;
    const QString sien = club();
    m_courant->ajoute(numero, sien);
    const Retardataire entree = etat == EtatTirage::PasTire ? Retardataire::Aucun
        : etat == EtatTirage::Exemption                     ? Retardataire::PrendExemption
                                                            : Retardataire::NouvelleExemption;
    EXPECT_EQ(donnees::AjouteEquipe(partage().BaseDonnees, fiche(numero, sien), entree), adversaire);
    return true;
}

bool Saison::retireEquipe()
{
    const int equipe = equipeAuHasard();
    EXPECT_EQ(donnees::RetireEquipe(partage().BaseDonnees, m_courant->numero, equipe),
              m_courant->equipes.erase(equipe) > 0);
    return true;
}

bool Saison::corrigeEquipe()
{
    const int equipe = equipeAuHasard();
    if (equipe == 0)
        return false;
    m_courant->equipes[equipe] = {club()};
    EXPECT_TRUE(donnees::CorrigeEquipe(partage().BaseDonnees, fiche(equipe, m_courant->equipes[equipe].club)));
    return true;
}

/// The button, when it shows. What a draw behind complete rounds gives is held against the rules of play too.
bool Saison::clique()
{
    if (!m_courant->boutonVisible() && !m_relance && !(m_impatient && m_courant->tourCourant < 8))
        return false;
    m_relance = false;
    const bool recommence = chance(70);
    const bool complet = std::ranges::all_of(m_courant->rencontres, [this](const Partie &r) {
        return r.tour <= m_courant->tourCourant && (r.equipe2 == 0 || (r.score1 == 13) != (r.score2 == 13));
    });
    const bool suivant = m_courant->tourCourant > 0 && !m_courant->rencontres.empty();
    AleaFixe alea = m_salle.alea;

    const modele::Concours::Clic clic = m_courant->clique(alea, recommence);
    const Salle::Clic fait = m_salle.clique(recommence);

    vus.insert(u"obstacle %1"_qs.arg(int(clic.bilan.obstacle)));
    vus.insert(u"statut %1"_qs.arg(int(clic.bilan.statut)));
    EXPECT_EQ(fait.bilan.obstacle, clic.bilan.obstacle);
    EXPECT_EQ(fait.bilan.statut, clic.bilan.statut);
    EXPECT_EQ(fait.essais, clic.essais);
    EXPECT_TRUE(partage().TabTirage.lignes.empty());
    EXPECT_EQ(AleaFixe(m_salle.alea).suivant(), alea.suivant());
    if (!suivant)
        return true;
    if (clic.journal.remplacees > 0)
        vus.insert(u"remplacée"_qs);
    EXPECT_TRUE(memes(m_salle.tbclass(), modele::parRang(clic.classement)));
    if (complet) {
        EXPECT_EQ(modele::fauteDuTour(*m_courant, clic.journal), QString());
    }
    return true;
}

TEST(Saison, ChaqueActeCommeSurLePapier)
{
    const quint32 choisie = qEnvironmentVariableIntValue("VARLOTOUR_GRAINE");
    const qint64 duree = qint64(qEnvironmentVariableIntValue("VARLOTOUR_SAISON")) * 1000;
    const bool seule = choisie > 0 && duree == 0;
    const quint32 premiere = std::max(choisie, 1u);
    const quint32 derniere = seule ? choisie : saisonsOrdinaires;
    QElapsedTimer temps;
    temps.start();
    std::set<QString> vus;
    for (quint32 graine = premiere; duree > 0 ? temps.elapsed() < duree : graine <= derniere; ++graine) {
        SCOPED_TRACE(testing::Message() << "VARLOTOUR_GRAINE=" << graine);
        Saison saison(graine, seule);
        saison.joue();
        ASSERT_FALSE(HasFailure());
        vus.merge(saison.vus);
    }
    // Two obstacles and none, three states of a draw, four ways of coming late, and the team that gives way for the
    // sake of clubs.
    EXPECT_TRUE(seule || vus.size() >= 9) << QStringList(vus.begin(), vus.end()).join(u'\n').toStdString();
}

} // namespace
