#pragma once

#include "platform/boites.h"
#include "platform/imprimante.h"

#include <functional>
#include <QStringList>

#include <deque>

/// Boxes that answer by themselves: each one shown must be the next that was expected. An unexpected box fails the
/// test, and so does one that was expected and never came.
class BoitesScript final : public Boites
{
public:
    BoitesScript() = default;
    ~BoitesScript() override;
    Q_DISABLE_COPY_MOVE(BoitesScript)

    /// The next box holds \p partie in its text, and \p reponse is the button pressed.
    void attend(const QString &partie, ReponseBoite reponse = ReponseBoite::OK);
    /// The next box asks for a line of text and gets \p saisie.
    void attendSaisie(const QString &partie, const std::optional<QString> &saisie);
    /// All expected boxes have been shown; the others are forgotten.
    void verifie();
    /// Texts of all boxes shown, in order.
    const QStringList &textes() const { return m_textes; }
    /// Title of the last box.
    const QString &titre() const { return m_titre; }

    ReponseBoite MsgBox(const QString &texte, int drapeaux, const QString &titre) override;
    std::optional<QString> InputBox(const QString &texte, const QString &titre) override;
    std::unique_ptr<Destination> ShowPrinter() override { return imprimante ? imprimante() : nullptr; }

    /// Makes the printer that the operator chooses; without it he cancels.
    std::function<std::unique_ptr<Destination>()> imprimante;

private:
    struct Attendue
    {
        QString partie;
        ReponseBoite reponse = ReponseBoite::OK;
        bool saisie = false;
        std::optional<QString> texteSaisi = {};
    };

    std::optional<Attendue> suivante(const QString &texte, const QString &titre, bool saisie);

    std::deque<Attendue> m_attendues;
    QStringList m_textes;
    QString m_titre;
};
