#include "outils/place_vue.h"

QStringList ecransProposes(const QStringList &ecrans, const QString &operateur)
{
    QStringList autres = ecrans;
    autres.removeAll(operateur);
    return autres.isEmpty() ? ecrans : autres;
}

PlaceVue choisitPlace(const QStringList &ecrans, const QString &operateur, const PlaceVue &voulue)
{
    const QStringList proposes = ecransProposes(ecrans, operateur);
    return {proposes.contains(voulue.ecran) ? voulue.ecran : proposes.constFirst(),
            voulue.pleinEcran && ecrans.size() > 1};
}
