#pragma once

#include "maintenance/patience.h"
#include "platform/formulaire.h"
#include "platform/imprimante.h"

#include <functional>
#include <memory>

/// Address at the foot of every page.
inline const QString adresseEditeur = u"www.varlotour.example"_qs;

/// What the sheets share: the printer dialog, the page head, the footer and the page counter of one document. Positions
/// are in twips.
class Cadre
{
public:
    /// Height that the sheets leave free below the last block.
    static constexpr int margePage = 2000;
    static constexpr int piedHabituel = 1500;
    static constexpr int piedTirage = 800;

    /// Asks for the printer. Nothing when the operator cancels, who is told so.
    static std::unique_ptr<Cadre> ouvre(const Contexte &contexte);

    Imprimante &papier() { return m_papier; }
    /// What stands at the head of every page, drawn when the document begins and behind every page break.
    void setEntete(std::function<void()> entete) { m_entete = std::move(entete); }
    /// Height of the footer above the lower edge.
    void setPied(int hauteur) { m_pied = hauteur; }

    /// Draws the head of the first page.
    void commence() { m_entete(); }
    /// Ends the page and begins the next one when the last block has passed \p limite.
    void saute(int limite);
    /// Draws the last footer and sends the document.
    void termine();

    /// Prints the date, the place, and at \p colonne the team size and the category, with a blank line behind them.
    void ecritConcours(int colonne);

private:
    Cadre(const Contexte &contexte, std::unique_ptr<Destination> destination);
    void ecritPied();

    const Partage &m_partage;
    PatienceTardive m_patience;
    Imprimante m_papier;
    std::function<void()> m_entete;
    int m_pied = piedHabituel;
    int m_page = 0;
};

/// Prints \p texte and stays on the line; its letters get smaller when it would pass \p fin, as far as they can still
/// be read.
void ecritJusque(Imprimante &papier, const QString &texte, int fin);

/// Last \p largeur characters of \p texte with blanks before it.
QString aligneDroite(const QString &texte, int largeur);
QString aligneDroite(qint64 nombre, int largeur);
