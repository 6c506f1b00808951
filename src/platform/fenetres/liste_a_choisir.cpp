#include "fenetres/liste_a_choisir.h"

#include "fenetres/boites.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <tuple>

namespace {

constexpr int hauteurLigne = 34; // pixels
constexpr QSize taille(860, 460);

} // namespace

void appreteListe(QTableView &table)
{
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setAlternatingRowColors(true);
    table.setShowGrid(false);
    table.setTabKeyNavigation(false);
    table.setWordWrap(false);
    table.verticalHeader()->setDefaultSectionSize(hauteurLigne);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void ecritLigne(QTableWidget &table, int ligne, const QStringList &textes)
{
    for (int colonne = 0; colonne < textes.size(); ++colonne) {
        auto *cellule = new QTableWidgetItem(textes[colonne]);
        bool estNombre = false;
        std::ignore = textes[colonne].toInt(&estNombre);
        cellule->setTextAlignment(estNombre ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        table.setItem(ligne, colonne, cellule);
    }
}

ListeAChoisir::ListeAChoisir(const BoiteListe &liste, QWidget *parent)
    : QDialog(parent)
    , m_lignes(new QTableWidget(this))
{
    auto *texte = new QLabel(QString(liste.Texte).replace(u"\r\n"_qs, u"\n"_qs), this);
    texte->setTextFormat(Qt::PlainText);
    texte->setWordWrap(true);
    texte->setBuddy(m_lignes);
    remplit(liste);

    auto *boutons = new QDialogButtonBox(this);
    m_accepter = boutons->addButton(liste.Accepter, QDialogButtonBox::AcceptRole);
    boutons->addButton(liste.Renoncer, QDialogButtonBox::RejectRole);
    m_accepter->setEnabled(choisie().has_value());
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_lignes, &QTableWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(m_lignes, &QTableWidget::itemSelectionChanged, this,
            [this] { m_accepter->setEnabled(choisie().has_value()); });

    auto *colonne = new QVBoxLayout(this);
    colonne->addWidget(texte);
    colonne->addWidget(m_lignes, 1);
    colonne->addWidget(boutons);
    resize(taille);
    m_lignes->setFocus();
}

void ListeAChoisir::remplit(const BoiteListe &liste)
{
    m_lignes->setObjectName(u"Lignes"_qs);
    m_lignes->setColumnCount(int(liste.Entetes.size()));
    m_lignes->setHorizontalHeaderLabels(liste.Entetes);
    m_lignes->setRowCount(int(liste.Lignes.size()));
    for (int ligne = 0; ligne < m_lignes->rowCount(); ++ligne) {
        ecritLigne(*m_lignes, ligne, liste.Lignes[std::size_t(ligne)]);
    }
    appreteListe(*m_lignes);
    if (liste.Choisie >= 0)
        m_lignes->selectRow(liste.Choisie);
}

std::optional<int> ListeAChoisir::choisie() const
{
    const QModelIndexList lignes = m_lignes->selectionModel()->selectedRows();
    return lignes.isEmpty() ? std::nullopt : std::optional(lignes.constFirst().row());
}
