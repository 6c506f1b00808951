// What the grid shows and how it follows mouse and keyboard; its data operations stand in flexgrid.cpp.
#include "grille/flexgrid.h"

#include "socle/twips.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int MargeTitre = 2; // pixels around a heading that is to be seen whole

} // namespace

void FlexGrid::marque()
{
    m_aMontrer = true;
    if (m_prevu || !m_redraw)
        return;
    m_prevu = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_prevu = false;
            if (m_redraw)
                synchronise();
        },
        Qt::QueuedConnection);
}

void FlexGrid::synchronise()
{
    if (!m_aMontrer)
        return;
    m_aMontrer = false;
    if (m_modele->enAttente()) {
        m_modele->publie();
        appliqueLargeurs();
    }
    montreSelection();
}

void FlexGrid::appliqueLargeurs()
{
    for (int colonne = 0; colonne < Cols(); ++colonne)
        setColumnWidth(colonne, largeurVoulue(colonne));
}

int FlexGrid::largeurVoulue(int colonne) const
{
    const int dite = enPixels(m_largeurs[size_t(colonne)]);
    if (!m_titresEntiers)
        return dite;
    const QString titre = m_modele->texte(0, colonne).trimmed();
    const int entier = titre.isEmpty() ? 0 : horizontalHeader()->fontMetrics().horizontalAdvance(titre) + MargeTitre;
    return std::max(dite, entier);
}

void FlexGrid::setTitresEntiers(bool entiers)
{
    m_titresEntiers = entiers;
    appliqueLargeurs();
}

int FlexGrid::LargeurAffichee(int colonne)
{
    synchronise();
    return largeurVoulue(colonne);
}

void FlexGrid::montreSelection()
{
    const auto [debut, fin] = std::minmax(m_row, m_rowSel);
    if (fin == 0) {
        selectionModel()->clear();
        return;
    }
    const QModelIndex haut = m_modele->index(std::max(debut, 1) - 1, 0);
    const QModelIndex bas = m_modele->index(fin - 1, Cols() - 1);
    selectionModel()->select(QItemSelection(haut, bas), QItemSelectionModel::ClearAndSelect);
    const QModelIndex bout = m_rowSel > 0 ? m_modele->index(m_rowSel - 1, m_colSel) : QModelIndex();
    selectionModel()->setCurrentIndex(bout, QItemSelectionModel::NoUpdate);
}

bool FlexGrid::viewportEvent(QEvent *evenement)
{
    // Nothing may reach the view while it still believes in rows of before.
    if (m_redraw)
        synchronise();
    return QTableView::viewportEvent(evenement);
}

bool FlexGrid::eventFilter(QObject *objet, QEvent *evenement)
{
    const bool presse = evenement->type() == QEvent::MouseButtonPress;
    if (objet == horizontalHeader()->viewport() && (presse || evenement->type() == QEvent::MouseButtonRelease)) {
        const auto *souris = static_cast<QMouseEvent *>(evenement);
        synchronise();
        m_mouseRow = 0;
        m_mouseCol = horizontalHeader()->logicalIndexAt(souris->position().toPoint());
        if (presse)
            Q_EMIT mousePresse(souris->button(), souris->modifiers(), m_mouseRow, m_mouseCol);
        else
            Q_EMIT mouseRelache(souris->button(), souris->modifiers(), m_mouseRow, m_mouseCol);
    }
    return QTableView::eventFilter(objet, evenement);
}

void FlexGrid::noteSouris(const QPoint &point)
{
    const int ligne = rowAt(point.y());
    m_mouseRow = ligne < 0 ? -1 : ligne + 1;
    m_mouseCol = columnAt(point.x());
}

void FlexGrid::suitBoutonGauche(const QMouseEvent &evenement)
{
    if (evenement.button() != Qt::LeftButton || m_mouseRow < 1 || m_mouseCol < 0)
        return;
    if (evenement.modifiers().testFlag(Qt::ShiftModifier))
        etend(m_mouseRow, m_mouseCol);
    else
        choisit(m_mouseRow, m_mouseCol);
    m_glisse = true;
    synchronise();
}

void FlexGrid::mousePressEvent(QMouseEvent *evenement)
{
    noteSouris(evenement->position().toPoint());
    suitBoutonGauche(*evenement);
    Q_EMIT mousePresse(evenement->button(), evenement->modifiers(), m_mouseRow, m_mouseCol);
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent *evenement)
{
    noteSouris(evenement->position().toPoint());
    suitBoutonGauche(*evenement);
}

void FlexGrid::mouseMoveEvent(QMouseEvent *evenement)
{
    const QPoint point = evenement->position().toPoint();
    noteSouris(point);
    if (!m_glisse)
        return;
    const int bas = rowAt(viewport()->height() - 1);
    int ligne = m_mouseRow;
    if (point.y() < 0)
        ligne = TopRow() - 1;
    else if (ligne < 0)
        ligne = bas < 0 ? Rows() - 1 : bas + 2;
    ligne = std::clamp(ligne, 1, Rows() - 1);
    etend(ligne, m_mouseCol < 0 ? m_colSel : m_mouseCol);
    synchronise();
    scrollTo(m_modele->index(ligne - 1, m_colSel));
}

void FlexGrid::mouseReleaseEvent(QMouseEvent *evenement)
{
    noteSouris(evenement->position().toPoint());
    if (evenement->button() == Qt::LeftButton)
        m_glisse = false;
    Q_EMIT mouseRelache(evenement->button(), evenement->modifiers(), m_mouseRow, m_mouseCol);
}

void FlexGrid::keyPressEvent(QKeyEvent *evenement)
{
    synchronise();
    // The view chooses a current cell of its own when it gets the focus; the keys start from the grid's.
    montreSelection();
    const QModelIndex avant = currentIndex();
    QTableView::keyPressEvent(evenement);
    const QModelIndex apres = currentIndex();
    if (apres.isValid() && apres != avant) {
        if (evenement->modifiers().testFlag(Qt::ShiftModifier) && m_row > 0)
            etend(apres.row() + 1, apres.column());
        else
            choisit(apres.row() + 1, apres.column());
        synchronise();
        scrollTo(apres);
    }
    const QPointer<FlexGrid> vivante = this;
    clicAuClavier(*evenement);
    if (vivante != nullptr)
        Q_EMIT touche(evenement);
}

void FlexGrid::clicAuClavier(const QKeyEvent &evenement)
{
    const int cle = evenement.key();
    const bool gauche = cle == Qt::Key_Return || cle == Qt::Key_Enter;
    const bool droite =
        cle == Qt::Key_Menu || (cle == Qt::Key_F10 && evenement.modifiers().testFlag(Qt::ShiftModifier));
    if ((!gauche && !droite) || m_rowSel < 1 || evenement.isAutoRepeat())
        return;
    const QPointer<FlexGrid> vivante = this;
    const Qt::MouseButton bouton = gauche ? Qt::LeftButton : Qt::RightButton;
    const Qt::KeyboardModifiers avec = evenement.modifiers() & Qt::ControlModifier;
    m_mouseRow = m_rowSel;
    m_mouseCol = m_colSel;
    Q_EMIT mousePresse(bouton, avec, m_mouseRow, m_mouseCol);
    if (vivante != nullptr)
        Q_EMIT mouseRelache(bouton, avec, m_mouseRow, m_mouseCol);
}
