#include "papier/police_papier.h"

#include <cmath>

namespace {

constexpr int twipsParPoint = 20;

/// One pixel stands for one twip, so that the measures of the font are twips.
QFont policeEnTwips(const QString &famille, double points, bool gras, bool italique)
{
    QFont police(famille);
    police.setStyleHint(QFont::Serif);
    police.setHintingPreference(QFont::PreferNoHinting);
    police.setKerning(false);
    police.setPixelSize(int(std::lround(points * twipsParPoint)));
    police.setBold(gras);
    police.setItalic(italique);
    return police;
}

} // namespace

PolicePapier::PolicePapier(const QString &famille, double points, bool gras, bool italique)
    : m_police(policeEnTwips(famille, points, gras, italique))
    , m_mesures(m_police)
{
}

int PolicePapier::largeur(const QString &texte) const
{
    return int(std::lround(m_mesures.horizontalAdvance(texte)));
}

int PolicePapier::hauteur() const
{
    return int(std::lround(m_mesures.height()));
}

int PolicePapier::montee() const
{
    return int(std::lround(m_mesures.ascent()));
}
