#include "printing/remplit_tour.h"

#include "donnees/equipes.h"
#include "donnees/rencontres.h"
#include "grille/flexgrid.h"
#include "partage/partage.h"
#include "partage/routines.h"
#include "printing/feuille.h"

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
    {
    }

    void redige(const donnees::Rencontre &rencontre);
    const QString &phrase() const { return m_phrase; }
    const QString &score() const { return m_score; }

private:
    QString equipe(qint64 numero) const;
    void ecrit(const QString &gagnante, const store::Valeur &sien, const QString &perdante, const store::Valeur &autre);

    Partage &m_partage;
    bool m_avecNoms;
    QString m_phrase;
    QString m_score;
};

/// A team that has gone shows the club of the one behind it; with none behind it the list ends there, and says so.
QString Redacteur::equipe(qint64 numero) const
{
    const auto premier = donnees::PremierMembre(m_partage.BaseDonnees, m_partage.ConcoursCourant, numero);
    if (!premier)
        throw store::Erreur(store::Erreur::PasDeLigne, u"Aucun enregistrement en cours."_qs);
    const QString nom = m_avecNoms ? premier->nom : QString();
    const QString joueur = nom.isEmpty() ? QString() : u' ' + nom + u' ' + premier->prenom.left(1);
    return aligneDroite(numero, largeurNumero) + joueur + u" ("_qs + premier->club + u") "_qs;
}

void Redacteur::ecrit(const QString &gagnante, const store::Valeur &sien, const QString &perdante,
                      const store::Valeur &autre)
{
    m_score = TexteScore(m_partage, sien) + u':' + TexteScore(m_partage, autre);
    m_phrase = gagnante + u" bat "_qs + perdante;
}

/// A match without a winner repeats the sentence of the one before it.
void Redacteur::redige(const donnees::Rencontre &rencontre)
{
    const QString equipe1 = equipe(rencontre.equipe1);
    if (rencontre.exempt()) {
        m_score.clear();
        m_phrase = equipe1 + u' ' + m_partage.mes(42);
        return;
    }
    const QString equipe2 = equipe(rencontre.equipe2);
    const store::Valeur &score1 = rencontre.score1;
    const store::Valeur &score2 = rencontre.score2;
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
    Redacteur redacteur(partage, avecNoms);
    int ligne = grille.Row();
    for (const donnees::Rencontre &rencontre : donnees::RencontresDuTour(partage.BaseDonnees, partage.ConcoursCourant,
                                                                         tour, donnees::OrdreDuTour::SecondeEquipe)) {
        redacteur.redige(rencontre);
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
