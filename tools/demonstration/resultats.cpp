#include "resultats.h"

#include "app/torvik.h"
#include "grille/flexgrid.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

namespace demonstration {

namespace {

const QString forme = u"EResultats"_qs;
constexpr int gagnant = 13;
constexpr int perdantSansPoints = 7;
constexpr int motForfait = 43;
constexpr int scoreForfait = -1;
constexpr int pourcentDoubleClic = 5;
constexpr int pourcentCorrection = 4;
constexpr int pourcentMot = 1;
constexpr int lettresMs = 300;

} // namespace

Resultats::Resultats(Programme &programme, Operateur &operateur, const Plateau &plateau, Hasard &hasard,
                     Photographe &photographe)
    : m_programme(programme)
    , m_main(operateur)
    , m_plateau(plateau)
    , m_hasard(hasard)
    , m_photographe(photographe)
{
}

void Resultats::ouvre()
{
    m_main.clique(m_main.controle(u"Torvik"_qs, u"f_resultats"_qs));
    m_main.exigeFocus(forme, u"Equipe1"_qs);
}

void Resultats::tire(bool deuxFois)
{
    const int avant = tour();
    QWidget *bouton = m_main.controle(forme, u"tirage_suivant"_qs);
    if (deuxFois)
        m_main.doubleClique(bouton);
    else
        m_main.clique(bouton);
    exige(tour() == avant + 1, u"Après le tirage du tour %1, le tour courant est %2."_qs.arg(avant + 1).arg(tour()));
    exige(!bouton->isVisible(), u"Le bouton du tirage est resté après le tirage."_qs);
    m_main.exigeTexte(forme, u"Label2"_qs, u"Tour N° %1"_qs.arg(tour()));
    m_main.exigeFocus(forme, u"Equipe1"_qs);
}

int Resultats::tour() const
{
    return m_programme.partage().TourCourant;
}

bool Resultats::offreUnTour() const
{
    return m_main.controle(forme, u"tirage_suivant"_qs)->isVisible();
}

bool Resultats::termine() const
{
    return m_main.texte(forme, u"tour_P1"_qs) == u"Concours terminé" && !offreUnTour();
}

/// The sheet of the round: what the organiser reads the numbers from.
std::vector<Resultats::Paire> Resultats::attendues() const
{
    std::vector<Paire> rencontres;
    store::Recordset lignes = m_programme.partage().BaseDonnees.OpenRecordset(
        u"select equipe_1, equipe_2 from scores where concours = %1 and tour = %2 and equipe_2 > 0 and isnull(score_1) "
        u"order by equipe_1"_qs.arg(m_programme.partage().ConcoursCourant)
            .arg(tour()),
        store::dbOpenSnapshot);
    for (; !lignes.Eof(); lignes.MoveNext())
        rencontres.push_back({int(lignes[u"equipe_1"].entier()), int(lignes[u"equipe_2"].entier())});
    return rencontres;
}

int Resultats::saisitTour()
{
    std::vector<Paire> rencontres = attendues();
    m_hasard.melange(rencontres);
    const int nombre = int(rencontres.size());
    for (int place = 0; place < nombre; ++place)
        joue(rencontres[size_t(place)], place, nombre);
    photographie(termine() ? u"resultats-termine" : u"resultats-tour-complet");
    if (tour() == 1)
        montreLettres();
    return nombre;
}

/// The first round shows every gesture that its matches leave room for; later on chance picks them.
void Resultats::joue(const Paire &rencontre, int place, int nombre)
{
    const bool premierTour = tour() == 1;
    if ((premierTour && place == nombre - 1) || m_hasard.chance(pourcentMot)) {
        tapeMot(rencontre);
        return;
    }
    const Score score = tireScore(rencontre);
    if ((premierTour && place == 0) || m_hasard.chance(pourcentDoubleClic))
        doubleClique(rencontre, score.score1 == gagnant);
    else
        tapeScore(rencontre, score);
    if ((premierTour && place == nombre / 2) || m_hasard.chance(pourcentCorrection))
        corrige(rencontre);
    if (tour() == 2 && place == nombre / 2)
        corrigeParLesVues(rencontre);
}

Resultats::Score Resultats::tireScore(const Paire &rencontre)
{
    const int force1 = m_plateau.equipe(rencontre.equipe1).force + 20;
    const int force2 = m_plateau.equipe(rencontre.equipe2).force + 20;
    const bool premierGagne = m_hasard.entre(1, force1 + force2) <= force1;
    const int perdant = m_hasard.entre(0, gagnant - 1);
    return premierGagne ? Score{gagnant, perdant, true} : Score{perdant, gagnant, true};
}

/// Types the number of one of the two teams: the match comes up in its own order.
void Resultats::appelle(const Paire &rencontre, QStringView image)
{
    m_main.exigeFocus(forme, u"Equipe1"_qs);
    m_main.tape(QString::number(m_hasard.chance(50) ? rencontre.equipe1 : rencontre.equipe2));
    m_main.entree();
    m_main.exigeFocus(forme, u"Score1"_qs);
    m_main.exigeTexte(forme, u"Equipe1"_qs, QString::number(rencontre.equipe1));
    m_main.exigeTexte(forme, u"Equipe2"_qs, QString::number(rencontre.equipe2));
    photographie(image);
}

/// The loser's score alone says it all. When the second team has lost, its field is reached by the tab key or by the
/// winner's score, typed first.
void Resultats::tapeScore(const Paire &rencontre, const Score &score, QStringView image)
{
    appelle(rencontre, image);
    saisitScore(score);
    verifie(rencontre, score);
}

void Resultats::saisitScore(const Score &score)
{
    if (score.score1 < gagnant) {
        m_main.tape(QString::number(score.score1));
    } else {
        if (m_hasard.chance(50)) {
            m_main.tape(QString::number(gagnant));
            m_main.entree();
            photographie(u"resultats-gagnant-tape");
        } else {
            m_main.touche(Qt::Key_Tab);
        }
        m_main.exigeFocus(forme, u"Score2"_qs);
        m_main.remplace(QString::number(score.score2));
    }
    if (tour() == 2)
        m_photographe.prendBureau(u"bureau-resultats", *m_programme.torvik(),
                                  {forme, u"manqres"_qs, u"Groupes"_qs, u"valresu"_qs});
    m_main.entree();
}

/// The views stand beside the entry for the whole round, and leave the keyboard to it.
void Resultats::ouvreVues()
{
    const QString attendus = u"manqres"_qs;
    const QString joues = u"valresu"_qs;
    m_main.clique(m_main.controle(forme, u"manquants"_qs));
    m_main.exigeFocus(forme, u"Equipe1"_qs);
    m_photographe.prend(u"vue-attendus", *m_main.fenetre(attendus));
    m_main.clique(m_main.controle(attendus, u"classement"_qs));
    m_photographe.prend(u"vue-classement", *m_main.fenetre(attendus));
    m_main.clique(m_main.controle(forme, u"VALIDATION"_qs));
    m_main.exigeFocus(forme, u"Equipe1"_qs);
    m_photographe.prend(u"vue-joues", *m_main.fenetre(joues));
}

void Resultats::tapeMot(const Paire &rencontre)
{
    appelle(rencontre);
    m_main.tape(m_programme.partage().mes(motForfait));
    photographie(u"resultats-mot");
    m_main.entree();
    verifie(rencontre, {scoreForfait, gagnant, true});
}

void Resultats::doubleClique(const Paire &rencontre, bool premierGagne)
{
    appelle(rencontre);
    m_main.doubleClique(m_main.controle(forme, premierGagne ? u"Equipe1"_qs : u"Equipe2"_qs));
    verifie(rencontre,
            premierGagne ? Score{gagnant, perdantSansPoints, false} : Score{perdantSansPoints, gagnant, false});
}

/// Calls a match up again and gives it another score.
void Resultats::corrige(const Paire &rencontre)
{
    const Score score = tireScore(rencontre);
    tapeScore(rencontre, score, u"resultats-correction");
}

/// The views beside the entry: a match is told to be on the ground and taken back, a team is looked up, the played
/// matches are sorted, and the last one comes back into the entry by a click.
void Resultats::corrigeParLesVues(const Paire &rencontre)
{
    m_main.clique(m_main.controle(u"manqres"_qs, u"classement"_qs));
    if (m_main.controle<FlexGrid>(u"manqres"_qs, u"les_resultats_0"_qs)->Rows() > 1) {
        basculeLancee();
        montreDetail();
    }
    auto *joues = m_main.controle<FlexGrid>(u"valresu"_qs, u"les_resultats"_qs);
    m_main.cliqueCellule(joues, 1, 1, Qt::RightButton);
    m_photographe.prend(u"vue-joues-triee", *m_main.fenetre(u"valresu"_qs));
    int ligne = 1;
    while (ligne < joues->Rows()
           && (joues->TextMatrix(ligne, 1) != QString::number(rencontre.equipe1)
               || joues->TextMatrix(ligne, 2) != QString::number(rencontre.equipe2)))
        ++ligne;
    m_main.cliqueCellule(joues, ligne, 1);
    m_main.exigeFocus(forme, u"Score1"_qs);
    m_main.exigeTexte(forme, u"Equipe1"_qs, QString::number(rencontre.equipe1));
    photographie(u"resultats-recopie");
    const Score score = tireScore(rencontre);
    saisitScore(score);
    verifie(rencontre, score);
}

void Resultats::basculeLancee()
{
    auto *attendus = m_main.controle<FlexGrid>(u"manqres"_qs, u"les_resultats_0"_qs);
    const quint32 avant = attendus->CellBackColor(1, 1);
    m_main.cliqueCellule(attendus, 1, 1, Qt::RightButton);
    exige(attendus->CellBackColor(1, 1) != avant, u"La rencontre lancée ne se distingue pas des autres."_qs);
    m_photographe.prend(u"vue-attendus-lancee", *m_main.fenetre(u"manqres"_qs));
    m_photographe.prend(u"vue-groupes", *m_main.fenetre(u"Groupes"_qs));
    m_main.cliqueCellule(attendus, 1, 1, Qt::RightButton);
    exige(attendus->CellBackColor(1, 1) == avant, u"La rencontre est restée lancée."_qs);
}

void Resultats::montreDetail()
{
    const QString detail = u"Détail_résultats"_qs;
    m_main.cliqueCellule(m_main.controle<FlexGrid>(u"manqres"_qs, u"les_resultats_0"_qs), 1, 1);
    m_photographe.prend(u"detail-equipe", *m_main.fenetre(detail));
    m_main.fenetre(detail)->close();
    m_main.exigeFocus(forme, u"Equipe1"_qs);
}

/// The letters come up for a hand that keeps Alt down.
void Resultats::montreLettres()
{
    QWidget *champ = m_main.controle(forme, u"Equipe1"_qs);
    QTest::keyPress(champ, Qt::Key_Alt);
    QTest::qWait(lettresMs);
    photographie(u"resultats-lettres");
    QTest::keyRelease(champ, Qt::Key_Alt);
}

void Resultats::verifie(const Paire &rencontre, const Score &score)
{
    m_main.exigeFocus(forme, u"Equipe1"_qs);
    for (const QString &champ : {u"Equipe1"_qs, u"Equipe2"_qs, u"Score1"_qs, u"Score2"_qs})
        m_main.exigeTexte(forme, champ, QString());
    const store::Recordset ligne = m_programme.partage().BaseDonnees.OpenRecordset(
        u"select * from scores where concours = %1 and tour = %2 and equipe_1 = %3 and equipe_2 = %4"_qs
            .arg(m_programme.partage().ConcoursCourant)
            .arg(tour())
            .arg(rencontre.equipe1)
            .arg(rencontre.equipe2),
        store::dbOpenSnapshot);
    exige(!ligne.Eof() && !ligne[u"score_1"].estNull() && ligne[u"score_1"].entier() == score.score1
              && ligne[u"score_2"].entierOu(0) == score.score2 && ligne[u"score_reel"].booleen() == score.reel,
          u"Le résultat %1 - %2 (%3 à %4) n'est pas dans la base tel qu'il a été saisi."_qs.arg(rencontre.equipe1)
              .arg(rencontre.equipe2)
              .arg(score.score1)
              .arg(score.score2));
}

void Resultats::photographie(QStringView nom)
{
    m_photographe.prend(nom, *m_main.fenetre(forme));
}

} // namespace demonstration
