#pragma once

#include "commun/contenu.h"
#include "fenetres/formulaires.h"
#include "maintenance/purge.h"

#include <functional>
#include <vector>

/// An operator who agrees to everything.
class ToujoursOui : public Boites
{
public:
    ReponseBoite MsgBox(const QString &, int drapeaux, const QString &) override
    {
        return drapeaux & vbYesNo ? ReponseBoite::Oui : ReponseBoite::OK;
    }
    std::optional<QString> InputBox(const QString &, const QString &, std::optional<QPoint>) override { return {}; }
    std::unique_ptr<Destination> ShowPrinter() override;
    QString ShowOpen(const BoiteFichier &) override { return {}; }
    QString ShowSave(const BoiteFichier &) override { return {}; }
    std::optional<int> Choisit(const BoiteListe &) override { return {}; }
};

/// A day at the table, as a row of operations that a seed determines. Each begins with what the file holds, so that a
/// program started anew can go on where another was cut short, and each is on the disk when it returns.
class Journee
{
public:
    Journee(const QString &dossier, quint32 graine);

    int operations() const { return int(m_operations.size()); }
    /// Opens the base, or the one that a purge cut short has left beside it. Throws store::Erreur.
    void ouvre();
    void ferme() { m_partage.BaseDonnees.Close(); }
    bool estOuverte() const { return m_partage.BaseDonnees.estOuverte(); }
    /// Carries out one operation. Throws store::Erreur when it is not done.
    void fait(int operation);
    /// Whether another file takes the place of the base: what is left when it fails is seen at the next start.
    bool remplaceLaBase(int operation) const;
    QStringList contenu() { return Contenu(m_partage.BaseDonnees.native()); }
    QString integrite();

private:
    void compose(quint32 graine);
    void inscriptions(int equipes);
    void ajoute(std::function<void()> operation) { m_operations.push_back(std::move(operation)); }

    void creeConcours();
    void inscrit(qint64 numero);
    void saisit(int place);
    void reprendUneCopie();

    QString m_dossier;
    quint32 m_graine;
    AleaFixe m_alea{1};
    Horloge m_horloge;
    Partage m_partage;
    ToujoursOui m_operateur;
    Formulaires m_formulaires;
    std::vector<std::function<void()>> m_operations;
    std::vector<int> m_remplacements;
};
