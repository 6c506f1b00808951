#include "outils/modele_saison.h"

#include <QPainter>

namespace {

constexpr int largeurBarre = 160; // pixels
constexpr int margeBarre = 8;
const QColor jouees(0xB9, 0xCF, 0xE3);
const QColor gagnees(0x1F, 0x58, 0x8A);
/// On the ground of a row that is chosen.
const QColor joueesChoisie(0x6F, 0x9B, 0xC2);
const QColor gagneesChoisie(0xFF, 0xFF, 0xFF);

} // namespace

void ModeleSaison::prend(TableSaison table)
{
    beginResetModel();
    m_table = std::move(table);
    m_plus = 0;
    for (const std::vector<QVariant> &ligne : m_table.lignes) {
        if (m_table.parties >= 0)
            m_plus = std::max(m_plus, ligne[std::size_t(m_table.parties)].toInt());
    }
    endResetModel();
}

void ModeleSaison::trie(int colonne, Qt::SortOrder ordre)
{
    beginResetModel();
    m_table.trie(colonne, ordre);
    endResetModel();
}

QString ModeleSaison::texte(int ligne, int colonne) const
{
    return MotsSaison::texte(m_partage, m_table.lignes[std::size_t(ligne)][std::size_t(colonne)]);
}

std::pair<double, double> ModeleSaison::barre(int ligne) const
{
    if (m_plus == 0)
        return {};
    const std::vector<QVariant> &cellules = m_table.lignes[std::size_t(ligne)];
    return {cellules[std::size_t(m_table.parties)].toDouble() / m_plus,
            cellules[std::size_t(m_table.gagnees)].toDouble() / m_plus};
}

int ModeleSaison::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_table.lignes.size());
}

/// Bars have a column of their own behind the others.
int ModeleSaison::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_table.colonnes() + (m_table.parties >= 0 ? 1 : 0);
}

QVariant ModeleSaison::data(const QModelIndex &place, int role) const
{
    if (!place.isValid())
        return {};
    if (place.column() >= m_table.colonnes())
        return role == Qt::AccessibleTextRole
            ? texte(place.row(), m_table.gagnees) + u" / "_qs + texte(place.row(), m_table.parties)
            : QVariant();
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
        return texte(place.row(), place.column());
    if (role == Qt::TextAlignmentRole)
        return int(m_table.estNombre(place.column()) ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

QVariant ModeleSaison::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && section == m_table.place
        && (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole))
        return tr("Meilleure place");
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section < m_table.colonnes() ? m_table.entetes[section] : QString();
}

void BarreSaison::paint(QPainter *peintre, const QStyleOptionViewItem &style, const QModelIndex &place) const
{
    QStyledItemDelegate::paint(peintre, style, place);
    const auto *modele = qobject_cast<const ModeleSaison *>(place.model());
    if (modele == nullptr || place.column() < modele->table().colonnes())
        return;
    const auto [part, gagnee] = modele->barre(place.row());
    const QRectF cadre = QRectF(style.rect).adjusted(margeBarre, margeBarre, -margeBarre, -margeBarre);
    const bool choisie = style.state.testFlag(QStyle::State_Selected);
    const auto peint = [&](double longueur, const QColor &couleur) {
        peintre->fillRect(QRectF(cadre.topLeft(), QSizeF(cadre.width() * longueur, cadre.height())), couleur);
    };
    peint(part, choisie ? joueesChoisie : jouees);
    peint(gagnee, choisie ? gagneesChoisie : gagnees);
}

QSize BarreSaison::sizeHint(const QStyleOptionViewItem &style, const QModelIndex &place) const
{
    const QSize taille = QStyledItemDelegate::sizeHint(style, place);
    const auto *modele = qobject_cast<const ModeleSaison *>(place.model());
    const bool barre = modele != nullptr && place.column() == modele->table().colonnes();
    return barre ? QSize(largeurBarre, taille.height()) : taille;
}
