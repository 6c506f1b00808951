#pragma once

#include "app/partage.h"
#include "store/collation.h"

#include <map>
#include <optional>

/// Clubs that the file of known players gives to the licences of one competition, read at once: a list asks for each of
/// its rows.
class ClubsConnus
{
public:
    ClubsConnus(Partage &partage, qint32 concours);

    /// Club of the first known player who bears \p licence, which may be empty; nothing when nobody bears it.
    std::optional<QString> club(const QString &licence) const;

private:
    struct Ordre
    {
        bool operator()(const QString &a, const QString &b) const { return store::CompareFrancais(a, b) < 0; }
    };
    std::map<QString, QString, Ordre> m_clubs;
};
