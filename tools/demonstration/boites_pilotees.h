#pragma once

#include "fenetres/boites.h"
#include "photographe.h"

#include <QHash>
#include <QStringList>

#include <vector>

class QMessageBox;

namespace demonstration {

/// The boxes that the day may bring up.
enum class Boite {
    NumeroConcours,
    ClubNouveau,
    Panachees,
    RencontreLancee,
    Retardataire,
    MemeClub,
    DejaRencontrees,
    Importation,
    EquipeImportee,
    MeilleurTirage,
    ListeExportee,
    Copie,
    Suppression,
    CopieFaite,
    CopieAilleurs,
    Restauration,
    Restauree,
    Purge,
    PurgeReussie,
};

/// The boxes of the desktop, answered by a click on the button that an organiser would take. A box that no instruction
/// foresees is answered too, so that the program goes on, and kept as a fault.
class BoitesPilotees : public BoitesQt
{
public:
    explicit BoitesPilotees(Photographe &photographe)
        : m_photographe(photographe)
    {
    }

    /// A box whose text holds \p extrait is a \p boite, and gets \p reponse; the first one is taken as picture
    /// \p image.
    void attend(Boite boite, const QString &extrait, ReponseBoite reponse, QStringView image);
    /// Times that such a box came up so far.
    int fois(Boite boite) const { return m_fois.value(boite); }
    /// The next question for a line of text holds \p extrait, gets \p saisie, and is taken as picture \p image.
    void saisit(const QString &extrait, const QString &saisie, QStringView image);
    /// The next document goes to this PDF file; a printer asked for without it is a fault.
    void imprimeDans(const QString &fichier) { m_document = fichier; }
    /// The file dialog, for reading or writing, chooses this file next; one that is asked for without it is a fault.
    void choisit(const QString &fichier) { m_fichier = fichier; }
    /// What was unexpected since the start; empty when nothing was.
    const QString &faute() const { return m_faute; }

    ReponseBoite MsgBox(const QString &texte, int drapeaux, const QString &titre) override;
    std::optional<QString> InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin) override;
    std::unique_ptr<Destination> ShowPrinter() override;
    QString ShowOpen(const BoiteFichier &dialogue) override;
    QString ShowSave(const BoiteFichier &dialogue) override;
    std::optional<int> Choisit(const BoiteListe &liste) override;

private:
    struct Consigne
    {
        Boite boite;
        QString extrait;
        ReponseBoite reponse;
        QString image;
    };

    struct Saisie
    {
        QString extrait;
        QString texte;
        QString image;
    };

    QString fichierChoisi(const BoiteFichier &dialogue, const QString &renonce);
    const Consigne *consigne(const QString &texte) const;
    void repond(QMessageBox &boite, const Consigne *consigne);
    void photographie(const QString &image, QWidget &boite);
    void retientFaute(const QString &phrase);

    Photographe &m_photographe;
    std::vector<Consigne> m_consignes;
    std::optional<Saisie> m_saisie;
    QString m_document;
    QString m_fichier;
    QHash<Boite, int> m_fois;
    QString m_faute;
};

} // namespace demonstration
