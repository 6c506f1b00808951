#include "registration/forme_liste.h"

#include "fenetres/garde_defilement.h"

void FormeListe::prendGrille(FlexGrid *grille, const std::function<void(int bouton, int ligne)> &traitement)
{
    m_grille = grille;
    connect(grille, &FlexGrid::mouseRelache, this,
            [this, traitement](Qt::MouseButton bouton, Qt::KeyboardModifiers, int ligne, int) {
                execute([&] { traitement(CodeBouton(bouton), ligne); });
            });
}

void FormeListe::remplit(const QString &format, const std::function<void()> &lignes)
{
    // Events run while the rows come in, and one of them may ask for the same.
    if (m_patience)
        return;
    m_patience.emplace(contexte(), mes(130));
    const GardeDefilement defilement(*m_grille);
    m_grille->setRedraw(false);
    const auto fin = qScopeGuard([this] {
        m_patience.reset();
        m_grille->setRedraw(true);
    });
    m_grille->setRows(1);
    m_grille->setFormatString(format);
    lignes();
    elargitNumeros();
    for (const Tri &tri : m_tris)
        applique(tri);
}

/// The heading of the numbers can be shorter than they are.
void FormeListe::elargitNumeros()
{
    QString plusLong;
    for (int ligne = 1; ligne < m_grille->Rows(); ++ligne) {
        if (const QString numero = m_grille->TextMatrix(ligne, 0); numero.size() > plusLong.size())
            plusLong = numero;
    }
    m_grille->setColWidth(0, std::max(m_grille->ColWidth(0), m_grille->LargeurTexte(plusLong)));
}

void FormeListe::ajoute(std::initializer_list<QString> cellules)
{
    m_grille->AddItem(QString());
    const int ligne = m_grille->Rows() - 1;
    int colonne = 0;
    for (const QString &cellule : cellules)
        m_grille->setTextMatrix(ligne, colonne++, cellule);
    m_patience->avance(ligne);
}

/// What stands in order already, from the first row to the last, is turned round.
void FormeListe::trieParColonne()
{
    const int colonne = m_grille->MouseCol();
    const int derniere = m_grille->Rows() - 1;
    if (colonne < 0 || derniere < 2)
        return;
    const bool croissant =
        CompareCellules(m_grille->TextMatrix(1, colonne), m_grille->TextMatrix(derniere, colonne)) <= 0;
    const Tri tri{colonne, croissant ? FlexGrid::GeneriqueDecroissant : FlexGrid::GeneriqueCroissant};
    std::erase_if(m_tris, [colonne](const Tri &ancien) { return ancien.colonne == colonne; });
    m_tris.push_back(tri);
    applique(tri);
}

void FormeListe::applique(const Tri &tri)
{
    m_grille->setRow(0);
    m_grille->setCol(tri.colonne);
    m_grille->setSort(tri.ordre);
}
