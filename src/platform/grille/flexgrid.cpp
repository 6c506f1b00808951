#include "grille/flexgrid.h"

#include "socle/twips.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int LargeurInitiale = 960; // twips
constexpr int MargeCellule = 14; // pixels, both sides together
constexpr int MargeTexte = 8; // pixels around a cell's own text, gridline included
constexpr int TraitChoix = 2; // pixels
constexpr int HauteurLigne = 32; // pixels, room for a finger

/// A cell that has a colour of its own keeps it when its row is selected, within a frame: the colour tells who won.
class DelegueFlex final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *peintre, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(peintre, option, index);
        if (!option.state.testFlag(QStyle::State_Selected) || !index.data(Qt::BackgroundRole).isValid())
            return;
        const QColor choix = option.palette.color(QPalette::Highlight);
        const QRect &contour = option.rect;
        peintre->fillRect(QRect(contour.topLeft(), QSize(contour.width(), TraitChoix)), choix);
        peintre->fillRect(contour.adjusted(0, contour.height() - TraitChoix, 0, 0), choix);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
        if (option->backgroundBrush.style() != Qt::NoBrush)
            option->state &= ~QStyle::State_Selected;
    }
};

} // namespace

FlexGrid::FlexGrid(QWidget *parent)
    : QTableView(parent)
    , m_modele(new FlexGridModele(this))
    , m_largeurs(1, LargeurInitiale)
{
    setModel(m_modele);
    setItemDelegate(new DelegueFlex(this));
    setEditTriggers(NoEditTriggers);
    // The selection is the grid's own (a current cell and a far end); the view only shows it.
    setSelectionMode(NoSelection);
    setAutoScroll(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(HauteurLigne);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->viewport()->installEventFilter(this);
    connect(m_modele, &FlexGridModele::structureChangee, this, &FlexGrid::marque);
    // A bar that has nothing to scroll shows no handle.
    for (QScrollBar *barre : {verticalScrollBar(), horizontalScrollBar()}) {
        const auto eveille = [barre](int premier, int dernier) { barre->setEnabled(dernier > premier); };
        eveille(barre->minimum(), barre->maximum());
        connect(barre, &QScrollBar::rangeChanged, this, eveille);
    }
}

bool FlexGrid::existe(int ligne, int colonne) const
{
    const bool dedans = ligne >= 0 && ligne < Rows() && colonne >= 0 && colonne < Cols();
    Q_ASSERT_X(dedans, "FlexGrid", "no such cell");
    return dedans;
}

void FlexGrid::setRows(int nombre)
{
    m_modele->fixeLignes(std::max(nombre, 1));
    borneSelection();
}

void FlexGrid::setCols(int nombre)
{
    m_modele->fixeColonnes(std::max(nombre, 1));
    m_largeurs.resize(size_t(Cols()), LargeurInitiale);
    borneSelection();
}

void FlexGrid::borneSelection()
{
    m_row = std::min(m_row, Rows() - 1);
    m_rowSel = std::min(m_rowSel, Rows() - 1);
    m_col = std::min(m_col, Cols() - 1);
    m_colSel = std::min(m_colSel, Cols() - 1);
    marque();
}

void FlexGrid::choisit(int ligne, int colonne)
{
    if (!existe(ligne, colonne))
        return;
    m_row = m_rowSel = ligne;
    m_col = m_colSel = colonne;
    marque();
}

void FlexGrid::etend(int ligne, int colonne)
{
    if (!existe(ligne, colonne))
        return;
    m_rowSel = ligne;
    m_colSel = colonne;
    marque();
}

void FlexGrid::setRow(int ligne)
{
    choisit(ligne, m_col);
}

void FlexGrid::setCol(int colonne)
{
    choisit(m_row, colonne);
}

void FlexGrid::setRowSel(int ligne)
{
    etend(ligne, m_colSel);
}

void FlexGrid::setColSel(int colonne)
{
    etend(m_rowSel, colonne);
}

QString FlexGrid::TextMatrix(int ligne, int colonne) const
{
    return existe(ligne, colonne) ? m_modele->texte(ligne, colonne) : QString();
}

void FlexGrid::setTextMatrix(int ligne, int colonne, const QString &texte)
{
    if (existe(ligne, colonne))
        m_modele->fixeTexte(ligne, colonne, texte);
}

void FlexGrid::AddItem(const QString &texte)
{
    m_modele->ajoute(texte.split(u'\t'));
}

void FlexGrid::setFormatString(const QString &format)
{
    if (format.isEmpty())
        return;
    m_format = format;
    const QStringList titres = format.split(u'|');
    if (titres.size() > Cols())
        setCols(int(titres.size()));
    horizontalHeader()->ensurePolished();
    const QFontMetrics police = horizontalHeader()->fontMetrics();
    for (int colonne = 0; colonne < titres.size(); ++colonne) {
        QString titre = titres[colonne];
        char16_t signe = u' ';
        if (titre.startsWith(u'<') || titre.startsWith(u'^') || titre.startsWith(u'>')) {
            signe = titre.front().unicode();
            titre.remove(0, 1);
        }
        m_modele->fixeAlignement(colonne, signe);
        m_modele->fixeTexte(0, colonne, titre);
        // Cells hold letters and digits where the heading is padded with blanks, which are much narrower.
        const QString patron = QString(titre).replace(u' ', u'0');
        setColWidth(colonne, enTwips(police.horizontalAdvance(patron) + MargeCellule));
    }
}

int FlexGrid::ColWidth(int colonne) const
{
    return existe(0, colonne) ? m_largeurs[size_t(colonne)] : 0;
}

void FlexGrid::setColWidth(int colonne, int twips)
{
    if (!existe(0, colonne))
        return;
    m_largeurs[size_t(colonne)] = twips < 0 ? LargeurInitiale : twips;
    if (!m_modele->enAttente())
        setColumnWidth(colonne, largeurVoulue(colonne));
}

quint32 FlexGrid::CellBackColor(int ligne, int colonne) const
{
    return existe(ligne, colonne) ? m_modele->fond(ligne, colonne) : FondFenetre;
}

void FlexGrid::setCellBackColor(int ligne, int colonne, quint32 bgr)
{
    if (existe(ligne, colonne))
        m_modele->fixeFond(ligne, colonne, bgr);
}

bool FlexGrid::CellFontBold(int ligne, int colonne) const
{
    return existe(ligne, colonne) && m_modele->gras(ligne, colonne);
}

void FlexGrid::setCellFontBold(int ligne, int colonne, bool gras)
{
    if (existe(ligne, colonne))
        m_modele->fixeGras(ligne, colonne, gras);
}

int FlexGrid::LargeurTexte(const QString &texte, bool gras) const
{
    ensurePolished();
    QFont police = font();
    police.setBold(gras);
    return enTwips(QFontMetrics(police).horizontalAdvance(texte) + MargeTexte);
}

void FlexGrid::setSort(Ordre ordre)
{
    if (Rows() < 3)
        return;
    const auto [colDebut, colFin] = std::minmax(m_col, m_colSel);
    auto [debut, fin] = std::minmax(m_row, m_rowSel);
    const bool toutes = debut == fin;
    m_modele->trie(
        {toutes ? 1 : std::max(debut, 1), toutes ? Rows() - 1 : fin, colDebut, colFin, ordre == GeneriqueDecroissant});
}

int FlexGrid::TopRow() const
{
    const int premiere = rowAt(0);
    return premiere < 0 ? 1 : premiere + 1;
}

void FlexGrid::setTopRow(int ligne)
{
    if (!existe(ligne, 0) || ligne == 0)
        return;
    synchronise();
    scrollTo(m_modele->index(ligne - 1, 0), PositionAtTop);
}

void FlexGrid::setRedraw(bool montre)
{
    m_redraw = montre;
    setUpdatesEnabled(montre);
    if (montre)
        synchronise();
}
