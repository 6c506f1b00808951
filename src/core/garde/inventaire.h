#pragma once

#include "store/base_native.h"

#include <QDate>

#include <vector>

/// What a base holds of one competition.
struct ConcoursTenu
{
    bool operator==(const ConcoursTenu &) const = default;

    qint32 numero = 0;
    QDate jour; ///< Invalid where there is none.
    QString lieu;
    QString type;
    qint64 equipes = 0;
    int tours = 0; ///< Rounds drawn.
    qint64 resultats = 0; ///< Of the matches between two teams.
};

/// What a base holds, counted.
struct Inventaire
{
    bool operator==(const Inventaire &) const = default;

    /// Teams, and results between two teams, of all competitions together.
    qint64 equipes() const;
    qint64 resultats() const;

    std::vector<ConcoursTenu> concours; ///< By number.
    qint64 joueurs = 0; ///< Pre-registered, and known from a list.
    qint64 clubs = 0;
};

/// Counts the rows of \p base. Throws store::Erreur.
[[nodiscard]] Inventaire FaitInventaire(store::BaseNative &base);

/// The same of the base file \p fichier, which is only read. Throws store::Erreur when it is no whole base of this
/// program.
[[nodiscard]] Inventaire InventaireDe(const QString &fichier);
