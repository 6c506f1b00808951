#include "fenetres/resize.h"

#include "fenetres/formulaire.h"
#include "socle/twips.h"

#include <QScopeGuard>

namespace {

/// Distance by which a control is moved to the left to take it out of sight.
constexpr qint32 distanceParking = 75000;
/// From this height on, a form counts as sent off the screen.
constexpr qint32 horsEcran = 30000;

qint32 NormeGauche(qint32 gauche)
{
    return gauche < 0 ? gauche + distanceParking : gauche;
}

/// Name of a control and its place in its array: `NomJ_2` is number 2 of `NomJ`; a control outside an array has 0.
std::pair<QString, qint32> nomEtIndex(const QWidget &controle)
{
    const QString nom = controle.objectName();
    const qsizetype trait = nom.lastIndexOf(u'_');
    bool estIndex = false;
    const qint32 index = nom.mid(trait + 1).toInt(&estIndex);
    return trait > 0 && estIndex ? std::pair(nom.left(trait), index) : std::pair(nom, 0);
}

QList<QWidget *> controlesDe(const Formulaire &forme)
{
    return forme.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Moves as far as the control lets itself be moved: a fixed size keeps it from taking a new one, not from its place.
void deplace(QWidget &controle, const QRect &place)
{
    const QSize taille = place.size().expandedTo(controle.minimumSize()).boundedTo(controle.maximumSize());
    controle.setGeometry(QRect(place.topLeft(), taille));
}

} // namespace

int Redimensionnement::ChercheForm(const Formulaire &forme) const
{
    for (std::size_t i = 0; i < m_formes.size(); ++i) {
        if (m_formes[i].nom == forme.Name())
            return int(i);
    }
    return -1;
}

int Redimensionnement::EnregistreForm(const Formulaire &forme)
{
    m_formes.push_back({.nom = forme.Name(),
                        .haut = forme.Top(),
                        .gauche = forme.Left(),
                        .hauteur = forme.Height(),
                        .largeur = forme.Width(),
                        .hauteurInterieure = enTwips(forme.height()),
                        .largeurInterieure = enTwips(forme.width())});
    for (const QWidget *controle : controlesDe(forme)) {
        if (ChercheControle(*controle, forme.Name()) < 0)
            EnregistreControle(*controle, forme.Name());
    }
    return int(m_formes.size()) - 1;
}

int Redimensionnement::ChercheControle(const QWidget &controle, const QString &forme) const
{
    const auto [nom, index] = nomEtIndex(controle);
    for (std::size_t i = 0; i < m_controles.size(); ++i) {
        const Fiche &fiche = m_controles[i];
        if (fiche.proprietaire == forme && fiche.nom == nom && fiche.index == index)
            return int(i);
    }
    return -1;
}

void Redimensionnement::EnregistreControle(const QWidget &controle, const QString &forme)
{
    const auto [nom, index] = nomEtIndex(controle);
    m_controles.push_back({.nom = nom,
                           .index = index,
                           .proprietaire = forme,
                           .haut = enTwips(controle.y()),
                           .gauche = NormeGauche(enTwips(controle.x())),
                           .hauteur = enTwips(controle.height()),
                           .largeur = enTwips(controle.width())});
}

const Redimensionnement::Fiche &Redimensionnement::ficheDe(const Formulaire &forme)
{
    const int connue = ChercheForm(forme);
    return m_formes[std::size_t(connue < 0 ? EnregistreForm(forme) : connue)];
}

qint32 Redimensionnement::PourcentX(const Formulaire &forme)
{
    return enTwips(forme.width()) * 100 / std::max(ficheDe(forme).largeurInterieure, 1);
}

qint32 Redimensionnement::PourcentY(const Formulaire &forme)
{
    return enTwips(forme.height()) * 100 / std::max(ficheDe(forme).hauteurInterieure, 1);
}

void Redimensionnement::PlaceControle(QWidget &controle, const Formulaire &forme)
{
    const qint32 py = PourcentY(forme);
    const qint32 px = PourcentX(forme);
    const int numero = ChercheControle(controle, forme.Name());
    if (numero < 0)
        return; // A control made after the form was recorded stays where it is.
    const Fiche &fiche = m_controles[std::size_t(numero)];
    const qint32 parking = controle.x() < 0 ? distanceParking : 0;
    deplace(controle,
            QRect(enPixels(fiche.gauche * px / 100 - parking), enPixels(fiche.haut * py / 100),
                  enPixels(fiche.largeur * px / 100), enPixels(fiche.hauteur * py / 100)));
}

void Redimensionnement::RedimForm(Formulaire &forme)
{
    if (m_enRedim)
        return;
    m_enRedim = true;
    const auto fin = qScopeGuard([this] { m_enRedim = false; });
    if (forme.Top() >= horsEcran)
        return;
    for (QWidget *controle : controlesDe(forme))
        PlaceControle(*controle, forme);
}
