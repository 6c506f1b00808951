#pragma once

#include "photographe.h"
#include "pilote/boites_pilotees.h"

#include <QHash>

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

/// The boxes of the day, with their pictures: those that were told of may come in any order.
class BoitesDuJour final : public pilote::BoitesPilotees
{
public:
    explicit BoitesDuJour(Photographe &photographe)
        : m_photographe(photographe)
    {
    }

    /// A box whose text holds \p extrait is a \p boite, and gets \p reponse; the first one is taken as picture
    /// \p image.
    void prevoit(Boite boite, const QString &extrait, ReponseBoite reponse, QStringView image);
    /// Times that such a box came up so far.
    int fois(Boite boite) const { return m_numeros.contains(boite) ? BoitesPilotees::fois(m_numeros[boite]) : 0; }
    /// The next question for a line of text holds \p extrait, gets \p saisie, and is taken as picture \p image.
    void saisit(const QString &extrait, const QString &saisie, QStringView image);
    /// The next document goes to this PDF file; a printer asked for without it is a fault.
    void imprimeDans(const QString &fichier) { m_document = fichier; }
    /// The file dialog, for reading or writing, chooses this file next; one that is asked for without it is a fault.
    void choisit(const QString &fichier) { attendFichier({}, fichier); }
    /// What was unexpected since the start; empty when nothing was.
    const QString &faute() const { return m_faute; }

    std::unique_ptr<Destination> ShowPrinter() override;

private:
    void signale(const QString &phrase) override;
    void vue(const QString &extrait, QWidget &boite) override;

    Photographe &m_photographe;
    QHash<Boite, int> m_numeros;
    QHash<QString, QString> m_images;
    QString m_document;
    QString m_faute;
};

} // namespace demonstration
