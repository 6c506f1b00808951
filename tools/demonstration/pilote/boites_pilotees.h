#pragma once

#include "fenetres/boites.h"

#include <deque>
#include <functional>

class QWidget;

namespace pilote {

/// The boxes of the desktop, answered by a click on the button that an operator would take. Some are awaited in their
/// order, once each; others may come at any time. Any other is answered too, by its most harmless button, so that the
/// program goes on, and told as a fault.
class BoitesPilotees : public BoitesQt
{
public:
    BoitesPilotees() = default;
    Q_DISABLE_COPY_MOVE(BoitesPilotees)

    /// The next box holds \p partie in its text (and bears \p titre when one is given), and \p reponse is the button
    /// clicked.
    void attend(const QString &partie, ReponseBoite reponse = ReponseBoite::OK, const QString &titre = {});
    /// The next box asks for a line of text and gets \p saisie.
    void attendSaisie(const QString &partie, const std::optional<QString> &saisie);
    /// The next box chooses a file, under the title \p titre unless it is empty: it gets \p fichier, or is cancelled.
    void attendFichier(const QString &titre, const std::optional<QString> &fichier);
    /// The next box holds \p partie above a list, of which row \p ligne is taken, or none.
    void attendChoix(const QString &partie, std::optional<int> ligne);
    /// Whenever a box holds \p partie and none is awaited, it gets \p reponse. Gives the number of this instruction.
    int admet(const QString &partie, ReponseBoite reponse);
    /// How often the instruction \p numero of admet() has answered.
    int fois(int numero) const { return m_admises[std::size_t(numero)].fois; }
    /// From now on every box is answered unseen and looked at no more: OK, \p question to a yes/no question, \p saisie
    /// to one for a text; choices of a file are cancelled.
    void repondATout(ReponseBoite question = ReponseBoite::OK, const std::optional<QString> &saisie = {});
    /// All awaited boxes have been shown; the others are told and forgotten.
    void verifie();

    /// Texts of all boxes shown, in order.
    const QStringList &textes() const { return m_textes; }
    /// Title and flags of the last box, the rows of the last list, and where the last question was to stand, in twips.
    const QString &titre() const { return m_titre; }
    int drapeaux() const { return m_drapeaux; }
    const std::vector<QStringList> &lignes() const { return m_lignes; }
    std::optional<QPoint> coin() const { return m_coin; }

    ReponseBoite MsgBox(const QString &texte, int drapeaux, const QString &titre) override;
    std::optional<QString> InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin) override;
    std::unique_ptr<Destination> ShowPrinter() override;
    QString ShowOpen(const BoiteFichier &dialogue) override;
    QString ShowSave(const BoiteFichier &dialogue) override;
    std::optional<int> Choisit(const BoiteListe &liste) override;

    /// Makes the printer that the operator chooses; without it he cancels.
    std::function<std::unique_ptr<Destination>()> imprimante;

protected:
    /// What was not as awaited; called from the box's own event loop, which no failure may cross.
    virtual void signale(const QString &phrase) = 0;
    /// A box stands on the screen, before it is answered; \p partie is what it was known by, empty for an unknown one.
    virtual void vue(const QString &partie, QWidget &boite);

private:
    enum class Genre { Message, Saisie, Fichier, Liste };

    struct Attendue
    {
        Genre genre = Genre::Message;
        QString partie;
        QString titre = {};
        ReponseBoite reponse = ReponseBoite::OK;
        std::optional<QString> texte = {};
        std::optional<int> ligne = {};
    };

    struct Admise
    {
        QString partie;
        ReponseBoite reponse;
        int fois = 0;
    };

    std::optional<Attendue> suivante(Genre genre, const QString &texte, const QString &titre);
    std::optional<QString> fichierChoisi(const BoiteFichier &dialogue);

    std::deque<Attendue> m_attendues;
    std::vector<Admise> m_admises;
    QStringList m_textes;
    QString m_titre;
    int m_drapeaux = 0;
    std::vector<QStringList> m_lignes;
    std::optional<QPoint> m_coin;
    bool m_muette = false;
    ReponseBoite m_reponseMuette = ReponseBoite::OK;
    std::optional<QString> m_saisieMuette;
};

} // namespace pilote
