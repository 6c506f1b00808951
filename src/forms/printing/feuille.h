#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/patience.h"
#include "papier/imprimante.h"

#include <functional>
#include <memory>
#include <span>

/// What a sheet fixes once for all its pages, in twips.
struct MiseEnPage
{
    /// Lower edge from which heights are counted: that of the sheet of paper, or of its printable area.
    enum Bord { Papier, Zone };

    Bord bordFin = Zone;
    int fin = 2000; ///< Left free below the last block.
    Bord bordPied = Zone;
    int pied = 1500; ///< Height of the foot.
    int gauchePied = 400;
    bool numerotee = true; ///< Whether the foot bears the number of the page.
};

/// The kit of the sheets: the printer dialog, the page head and foot, the page test, and lines whose texts never meet.
/// A sheet adds its own rows. Positions are in twips, letters in points.
class Feuille
{
public:
    /// Asks for the printer. Nothing when the operator cancels, who is told so.
    static std::unique_ptr<Feuille> ouvre(const Contexte &contexte, const MiseEnPage &mise = {});

    /// For what the kit has no words for; the place and the letters are shared with it.
    Imprimante &papier() { return m_papier; }
    /// What stands at the head of every page: drawn by commence() and behind every page break.
    void setEntete(std::function<void()> entete) { m_entete = std::move(entete); }

    /// Draws the head of the first page.
    void commence();
    /// Ends the page and begins the next one, in the same letters, when the last block has passed the end of the page,
    /// or when \p suite twips more would reach the foot.
    void saute(int suite = 0);
    /// Ends the page when \p suite twips more would pass its end, so that what comes stays together.
    void garde(int suite);
    /// Draws the last foot and sends the document.
    void termine();

    /// Begins a head: date and place, and at \p colonne the team size and the category, with a blank line behind them.
    void ecritConcours(double taille, int colonne);
    /// Prints a title in bold letters and ends the line.
    void ecritTitre(double taille, int gauche, const QString &titre);

    /// Prints \p texte from \p gauche on and stays on the line. Its letters get smaller before it passes \p fin, down
    /// to the smallest that can be read; then it loses its end.
    void ecrit(int gauche, const QString &texte, int fin);
    /// Prints a line: each text at its place, ending before the next one, the last before the edge.
    void ecritLigne(std::span<const int> places, const QStringList &textes);
    /// Prints a line of the honours list, its score ending \p marge before the edge of the paper.
    void ecritRencontre(int gauche, const QString &phrase, const QString &score, int marge);
    /// Largest letters, not above the current ones, in which \p texte is no wider than \p largeur.
    double tailleQuiTient(const QString &texte, int largeur);

private:
    Feuille(const Contexte &contexte, std::unique_ptr<Destination> destination, const MiseEnPage &mise);
    int bas(MiseEnPage::Bord bord) const;
    int finPage() const { return bas(m_mise.bordFin) - m_mise.fin; }
    int hautPied() const { return bas(m_mise.bordPied) - m_mise.pied; }
    void tourne();
    void pose(const QString &texte, double petite, int fin);
    void ecritPied();

    const Partage &m_partage;
    PatienceTardive m_patience;
    Imprimante m_papier;
    MiseEnPage m_mise;
    std::function<void()> m_entete;
    int m_page = 0;
    int m_haut = 0; ///< Below the head of the current page.
};

/// Twips left free between two texts of a line.
inline constexpr int ecartTextes = 100;

/// Last \p largeur characters of \p texte with blanks before it.
QString aligneDroite(const QString &texte, int largeur);
QString aligneDroite(qint64 nombre, int largeur);
