#pragma once

#include "inscription.h"

#include <span>

namespace demonstration {

/// What is left to do behind the day, on the base that it has filled: the next competition takes its teams from a file,
/// the lists of the federation come in, and the season ends with a purge, the very last thing. A copy of the day's base
/// stays beside.
class Cloture
{
public:
    /// \p plateau must live as long as this.
    Cloture(const Options &options, const Plateau &plateau);

    /// Throws Incident where it does not go as it should.
    void joue();

    /// Names of all files that it leaves.
    static QStringList fichiers();

private:
    void ecritFichiers() const;
    void prevoitBoites();
    void importeEquipes();
    void importeListes();
    void restaure();
    void purge();
    void choisit(const QString &entree);
    QString chemin(const QString &nom) const;
    qint64 nombre(const QString &lignes);

    Options m_options;
    const Plateau &m_plateau;
    std::span<const EquipeDuJour> m_equipes; ///< Those that come by the file.
    Photographe m_photographe;
    BoitesDuJour m_boites;
    AleaFixe m_alea;
    Horloge m_horloge;
    Programme m_programme;
    Operateur m_main;
    Inscription m_inscription;
};

} // namespace demonstration
