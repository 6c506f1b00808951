#include "printing/remplit_tour.h"

#include "app/partage.h"
#include "app/routines.h"
#include "platform/flexgrid.h"
#include "printing/cadre.h"

using store::Recordset;

namespace {

constexpr int largeurNumero = 3;
constexpr quint32 cyan = FlexGrid::Couleur(0, 255, 255);
constexpr quint32 blanc = FlexGrid::Couleur(255, 255, 255);

/// Writes matches as sentences.
class Redacteur
{
public:
    Redacteur(Partage &partage, bool avecNoms)
        : m_partage(partage)
        , m_avecNoms(avecNoms)
        , m_equipes(partage.BaseDonnees.OpenRecordset(u"Equipes", store::dbOpenTable))
    {
        m_equipes.Index(u"PrimaryKey");
    }

    void redige(const Recordset &rencontre);
    const QString &phrase() const { return m_phrase; }
    const QString &score() const { return m_score; }

private:
    QString equipe(qint64 numero);
    void ecrit(const QString &gagnante, const store::Valeur &sien, const QString &perdante, const store::Valeur &autre);

    Partage &m_partage;
    bool m_avecNoms;
    Recordset m_equipes;
    QString m_phrase;
    QString m_score;
};

QString Redacteur::equipe(qint64 numero)
{
    m_equipes.Seek(u">=", {m_partage.ConcoursCourant, numero, 0});
    const QString club = u" ("_qs + m_equipes[u"societe"].texte() + u") "_qs;
    const QString nom = m_avecNoms ? m_equipes[u"nom"].texte() : QString();
    const QString joueur = nom.isEmpty() ? QString() : u' ' + nom + u' ' + m_equipes[u"prenom"].texte().left(1);
    return aligneDroite(numero, largeurNumero) + joueur + club;
}

void Redacteur::ecrit(const QString &gagnante, const store::Valeur &sien, const QString &perdante,
                      const store::Valeur &autre)
{
    m_score = TexteScore(m_partage, sien) + u':' + TexteScore(m_partage, autre);
    m_phrase = gagnante + u" bat "_qs + perdante;
}

/// A match without a winner repeats the sentence of the one before it.
void Redacteur::redige(const Recordset &rencontre)
{
    const QString equipe1 = equipe(rencontre[u"Equipe_1"].entier());
    const qint64 numero2 = rencontre[u"Equipe_2"].entierOu(0);
    if (numero2 == 0) {
        m_score.clear();
        m_phrase = equipe1 + u' ' + m_partage.mes(42);
        return;
    }
    const QString equipe2 = equipe(numero2);
    const store::Valeur score1 = rencontre[u"score_1"];
    const store::Valeur score2 = rencontre[u"score_2"];
    if (score1.estNull()) {
        m_score.clear();
        m_phrase = equipe1 + u" vs "_qs + equipe2;
    } else if (score2.estNull()) {
        return;
    } else if (score1.entier() > score2.entier()) {
        ecrit(equipe1, score1, equipe2, score2);
    } else if (score1.entier() < score2.entier()) {
        ecrit(equipe2, score2, equipe1, score1);
    }
}

/// Puts one line behind the round, in the place of the empty row.
void ajouteLabel(FlexGrid &grille, const QString &label, const QString &equipe)
{
    grille.setRows(grille.Rows() + 1);
    const int ligne = grille.Rows() - 2;
    grille.setTextMatrix(ligne, 0, label);
    grille.setTextMatrix(ligne, 1, equipe);
}

} // namespace

void RemplitTour(Partage &partage, FlexGrid &grille, int tour, bool avecNoms)
{
    Recordset rencontres = partage.BaseDonnees.OpenRecordset(
        u"select * from scores where concours = %1 and tour = %2 order by equipe_2"_qs.arg(partage.ConcoursCourant)
            .arg(tour),
        store::dbOpenSnapshot);
    Redacteur redacteur(partage, avecNoms);
    int ligne = grille.Row();
    for (; !rencontres.Eof(); rencontres.MoveNext()) {
        redacteur.redige(rencontres);
        grille.setTextMatrix(ligne, 1, redacteur.phrase());
        grille.setCellBackColor(ligne, 1, redacteur.phrase().endsWith(u"Exempt") ? cyan : blanc);
        grille.setTextMatrix(ligne, 2, redacteur.score());
        ligne = grille.Rows();
        grille.setRows(ligne + 1);
        grille.setVisible(true);
    }
    // A lone match under this name, that of round 1, was the final of two teams.
    const int derniere = ligne - 1;
    if (grille.TextMatrix(derniere, 0) != partage.mes(64) || grille.TextMatrix(derniere, 2).isEmpty())
        return;
    const QStringList cotes = redacteur.phrase().split(u" bat "_qs);
    ajouteLabel(grille, partage.mes(56), cotes.back());
    ajouteLabel(grille, partage.mes(63), cotes.front());
}
