#include "grille/flexgridmodele.h"

#include "store/collation.h"
#include "store/valeur.h"

#include <QBrush>
#include <QFont>

#include <algorithm>
#include <cmath>

namespace {

/// Only the weight: the rest comes from the view's own font.
QFont policeGrasse()
{
    QFont police;
    police.setBold(true);
    return police;
}

/// What one cell weighs in a sort, worked out once per row: reading a number out of a text is slow.
struct Cle
{
    enum Genre { Blanc, Nombre, Texte } genre;
    double nombre;
    QString texte;
};

Cle cleDe(const QString &texte)
{
    if (texte.trimmed().isEmpty())
        return {Cle::Blanc, 0, {}};
    const bool estNombre = store::EstNumerique(texte);
    return {estNombre ? Cle::Nombre : Cle::Texte, estNombre ? store::Val(texte) : 0, texte};
}

// Numbers come before texts: comparing a number with a text as texts would make circles (20 < 100 < 1a < 20).
int compareCles(const Cle &a, const Cle &b)
{
    if (a.genre != b.genre)
        return a.genre < b.genre ? -1 : 1;
    if (a.genre == Cle::Texte)
        return store::CompareFrancais(a.texte, b.texte);
    return a.nombre < b.nombre ? -1 : a.nombre > b.nombre ? 1 : 0;
}

} // namespace

int CompareCellules(const QString &a, const QString &b)
{
    return compareCles(cleDe(a), cleDe(b));
}

QColor couleurEcran(quint32 bgr)
{
    return QColor(int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int((bgr >> 16) & 0xFF));
}

QColor encreSur(const QColor &fond)
{
    const auto lineaire = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    const double clarte =
        0.2126 * lineaire(fond.redF()) + 0.7152 * lineaire(fond.greenF()) + 0.0722 * lineaire(fond.blueF());
    return clarte > 0.179 ? Qt::black : Qt::white;
}

FlexGridModele::FlexGridModele(QObject *parent)
    : QAbstractTableModel(parent)
    , m_lignes(1, Ligne(1))
    , m_alignements(1, u' ')
{
}

void FlexGridModele::ouvre()
{
    if (m_enAttente)
        return;
    m_enAttente = true;
    beginResetModel();
    Q_EMIT structureChangee();
}

void FlexGridModele::publie()
{
    if (!m_enAttente)
        return;
    m_enAttente = false;
    endResetModel();
}

void FlexGridModele::fixeLignes(int nombre)
{
    if (nombre == lignes())
        return;
    ouvre();
    m_lignes.resize(size_t(nombre), Ligne(size_t(m_colonnes)));
}

void FlexGridModele::fixeColonnes(int nombre)
{
    if (nombre == m_colonnes)
        return;
    ouvre();
    m_colonnes = nombre;
    m_alignements.resize(size_t(nombre), u' ');
    for (Ligne &ligne : m_lignes)
        ligne.resize(size_t(nombre));
}

void FlexGridModele::fixeTexte(int ligne, int colonne, const QString &texte)
{
    Cellule &cellule = m_lignes[size_t(ligne)][size_t(colonne)];
    if (cellule.texte == texte)
        return;
    cellule.texte = texte;
    annonceCellule(ligne, colonne, Qt::DisplayRole);
}

void FlexGridModele::fixeFond(int ligne, int colonne, quint32 fond)
{
    Cellule &cellule = m_lignes[size_t(ligne)][size_t(colonne)];
    if (cellule.fond == fond)
        return;
    cellule.fond = fond;
    annonceCellule(ligne, colonne, Qt::BackgroundRole);
}

void FlexGridModele::fixeGras(int ligne, int colonne, bool gras)
{
    Cellule &cellule = m_lignes[size_t(ligne)][size_t(colonne)];
    if (cellule.gras == gras)
        return;
    cellule.gras = gras;
    annonceCellule(ligne, colonne, Qt::FontRole);
}

void FlexGridModele::annonceCellule(int ligne, int colonne, int role)
{
    if (m_enAttente)
        return;
    if (ligne == 0) {
        Q_EMIT headerDataChanged(Qt::Horizontal, colonne, colonne);
        return;
    }
    const QModelIndex cellule = index(ligne - 1, colonne);
    // The ink follows the back colour, and the side of a number or text follows the text.
    const int suite = role == Qt::DisplayRole ? int(Qt::TextAlignmentRole) : int(Qt::ForegroundRole);
    Q_EMIT dataChanged(cellule, cellule, {role, suite});
}

void FlexGridModele::fixeAlignement(int colonne, char16_t signe)
{
    m_alignements[size_t(colonne)] = signe;
    ouvre();
}

void FlexGridModele::ajoute(const QStringList &textes)
{
    ouvre();
    Ligne ligne(static_cast<size_t>(m_colonnes));
    const auto remplies = std::min(textes.size(), qsizetype(m_colonnes));
    for (qsizetype c = 0; c < remplies; ++c)
        ligne[size_t(c)].texte = textes[c];
    m_lignes.push_back(std::move(ligne));
}

void FlexGridModele::trie(const Tri &tri)
{
    struct Rangee
    {
        std::vector<Cle> cles;
        Ligne ligne;
    };
    ouvre();
    const auto debut = m_lignes.begin() + tri.premiereLigne;
    const auto fin = m_lignes.begin() + tri.derniereLigne + 1;
    std::vector<Rangee> rangees;
    rangees.reserve(size_t(fin - debut));
    for (auto ligne = debut; ligne != fin; ++ligne) {
        std::vector<Cle> cles;
        for (int c = tri.premiereColonne; c <= tri.derniereColonne; ++c)
            cles.push_back(cleDe((*ligne)[size_t(c)].texte));
        rangees.push_back({std::move(cles), std::move(*ligne)});
    }
    std::stable_sort(rangees.begin(), rangees.end(), [&](const Rangee &a, const Rangee &b) {
        for (size_t c = 0; c < a.cles.size(); ++c) {
            const int ordre = compareCles(a.cles[c], b.cles[c]);
            if (ordre != 0)
                return tri.decroissant ? ordre > 0 : ordre < 0;
        }
        return false;
    });
    std::transform(rangees.begin(), rangees.end(), debut, [](Rangee &rangee) { return std::move(rangee.ligne); });
}

int FlexGridModele::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : lignes() - 1;
}

int FlexGridModele::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_colonnes;
}

QVariant FlexGridModele::data(const QModelIndex &index, int role) const
{
    const int ligne = index.row() + 1;
    // While a reset is open the view may still ask for cells that are gone.
    if (!index.isValid() || ligne >= lignes() || index.column() >= m_colonnes)
        return {};
    const Cellule &cellule = m_lignes[size_t(ligne)][size_t(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return cellule.texte;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignement(index.column(), cellule.texte));
    case Qt::BackgroundRole:
        return cellule.fond == FondParDefaut ? QVariant() : QVariant(QBrush(couleurEcran(cellule.fond)));
    case Qt::ForegroundRole:
        return cellule.fond == FondParDefaut ? QVariant() : QVariant(QBrush(encreSur(couleurEcran(cellule.fond))));
    case Qt::FontRole:
        return cellule.gras ? QVariant(policeGrasse()) : QVariant();
    case Qt::AccessibleDescriptionRole:
        return m_sens.contains(cellule.fond) ? m_sens.at(cellule.fond) : QString();
    default:
        return {};
    }
}

QVariant FlexGridModele::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_colonnes)
        return {};
    if (role == Qt::DisplayRole)
        return m_lignes.front()[size_t(section)].texte.trimmed();
    if (role == Qt::AccessibleTextRole)
        return m_titresLus.contains(section) ? m_titresLus.at(section) : QString();
    if (role == Qt::TextAlignmentRole) {
        const bool generique = m_alignements[size_t(section)] == u' ';
        return QVariant::fromValue(generique ? Qt::Alignment(Qt::AlignCenter) : alignement(section, {}));
    }
    return {};
}

Qt::Alignment FlexGridModele::alignement(int colonne, const QString &texte) const
{
    switch (m_alignements[size_t(colonne)]) {
    case u'<':
        return Qt::AlignLeft | Qt::AlignVCenter;
    case u'^':
        return Qt::AlignCenter;
    case u'>':
        return Qt::AlignRight | Qt::AlignVCenter;
    default:
        return (store::EstNumerique(texte) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    }
}
