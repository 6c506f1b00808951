#pragma once

#include <QStringList>

/// Where the public view stands.
struct PlaceVue
{
    bool operator==(const PlaceVue &) const = default;

    QString ecran = {}; ///< Name of the screen.
    bool pleinEcran = false;
};

/// The place of the view among \p ecrans, at least one, the operator working on \p operateur: never on his screen when
/// there is another, on \p voulue if that is there. Alone it is a window like others.
PlaceVue choisitPlace(const QStringList &ecrans, const QString &operateur, const PlaceVue &voulue);

/// The screens among which there is something to choose.
QStringList ecransProposes(const QStringList &ecrans, const QString &operateur);
