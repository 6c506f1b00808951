#pragma once

#include "fenetres/boites.h"
#include "papier/imprimante.h"

#include <QStringList>

#include <deque>
#include <functional>

/// Boxes that answer by themselves: each one shown must be the next that was expected. An unexpected box fails the
/// test, and so does one that was expected and never came. What is shown are real boxes, answered at once, so that the
/// focus comes and goes as it does for an operator.
class BoitesScript final : public Boites
{
public:
    BoitesScript() = default;
    ~BoitesScript() override;
    Q_DISABLE_COPY_MOVE(BoitesScript)

    /// The next box holds \p partie in its text (and bears \p titre when one is given), and \p reponse is the button
    /// pressed.
    void attend(const QString &partie, ReponseBoite reponse = ReponseBoite::OK, const QString &titre = {});
    /// From now on every box is answered and looked at no more: OK, \p question to a yes/no question, \p saisie to one
    /// for a text; choices of a file are cancelled.
    void repondATout(ReponseBoite question = ReponseBoite::OK, const std::optional<QString> &saisie = {})
    {
        m_muette = true;
        m_reponseMuette = question;
        m_saisieMuette = saisie;
    }
    /// The next box asks for a line of text and gets \p saisie.
    void attendSaisie(const QString &partie, const std::optional<QString> &saisie);
    /// The next box chooses a file, under the title \p titre: it gets \p fichier, or is cancelled.
    void attendFichier(const QString &titre, const std::optional<QString> &fichier);
    /// The next box holds \p partie above a list, of which row \p ligne is taken, or none.
    void attendChoix(const QString &partie, std::optional<int> ligne);
    /// The rows of the last list.
    const std::vector<QStringList> &lignes() const { return m_lignes; }
    /// All expected boxes have been shown; the others are forgotten.
    void verifie();
    /// Texts of all boxes shown, in order.
    const QStringList &textes() const { return m_textes; }
    /// Title and flags of the last box.
    const QString &titre() const { return m_titre; }
    int drapeaux() const { return m_drapeaux; }
    /// Where the last question was to stand, in twips.
    std::optional<QPoint> coin() const { return m_coin; }

    ReponseBoite MsgBox(const QString &texte, int drapeaux, const QString &titre) override;
    std::optional<QString> InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin) override;
    std::unique_ptr<Destination> ShowPrinter() override { return imprimante ? imprimante() : nullptr; }
    QString ShowOpen(const BoiteFichier &dialogue) override;
    QString ShowSave(const BoiteFichier &dialogue) override;
    std::optional<int> Choisit(const BoiteListe &liste) override;

    /// Makes the printer that the operator chooses; without it he cancels.
    std::function<std::unique_ptr<Destination>()> imprimante;

private:
    enum class Genre { Message, Saisie, Fichier, Liste };

    struct Attendue
    {
        QString partie;
        ReponseBoite reponse = ReponseBoite::OK;
        QString titre = {};
        Genre genre = Genre::Message;
        std::optional<QString> texteSaisi = {};
        std::optional<int> ligne = {};
    };

    std::optional<Attendue> suivante(const QString &texte, const QString &titre, Genre genre);

    std::deque<Attendue> m_attendues;
    QStringList m_textes;
    std::vector<QStringList> m_lignes;
    QString m_titre;
    int m_drapeaux = 0;
    std::optional<QPoint> m_coin;
    bool m_muette = false;
    ReponseBoite m_reponseMuette = ReponseBoite::OK;
    std::optional<QString> m_saisieMuette;
};
