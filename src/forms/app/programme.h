#pragma once

#include "fenetres/formulaires.h"
#include "partage/partage.h"

#include <QLockFile>

#include <memory>

class AccesClavier;
class Torvik;

/// The whole program of one run: shared state, forms and main window, put together.
class Programme
{
public:
    /// \p dossier holds the base and the resources.
    Programme(const QString &dossier, SourceAleatoire &alea, const Horloge &horloge, Boites &boites);
    ~Programme();

    /// The page that F1 shows.
    void donneManuel(const QString &fichier) { m_manuel = fichier; }
    /// Creates the main window, which opens the base and shows the welcome window. A failure is shown in one box; false
    /// then, and the program has to end.
    [[nodiscard]] bool demarre();
    /// Closes the main window, and with it the base.
    void termine();

    Partage &partage() { return m_partage; }
    Formulaires &formulaires() { return m_formulaires; }
    Torvik *torvik() const { return m_torvik.get(); }

private:
    Partage m_partage;
    Boites &m_boites;
    QString m_manuel;
    Formulaires m_formulaires;
    std::unique_ptr<Torvik> m_torvik;
    std::unique_ptr<AccesClavier> m_clavier;
};

/// Keeps a second program away from the base of one folder. The guard goes with the process, however it ends.
class InstanceUnique
{
public:
    explicit InstanceUnique(const QString &dossier);

    /// Whether another program already holds the folder.
    bool dejaPrise() const { return m_dejaPrise; }
    /// The same, told to the operator: this program has to end.
    [[nodiscard]] bool cedeLaPlace(Boites &boites) const;

private:
    bool prend();

    QLockFile m_verrou;
    bool m_dejaPrise = false;
};
