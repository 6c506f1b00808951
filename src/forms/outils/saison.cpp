#include "outils/saison.h"

#include "fenetres/liste_a_choisir.h"
#include "fenetres/patience.h"
#include "outils/courbe_equipes.h"
#include "outils/modele_saison.h"
#include "partage/routines.h"
#include "printing/imprime_saison.h"
#include "ui_saison.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QHeaderView>
#include <QSaveFile>
#include <QSet>
#include <QShortcut>
#include <QSignalBlocker>

namespace {

constexpr int colonneSouple = 2; // club of a player, place of a competition

/// Left ends of the columns on paper, in twips.
std::vector<int> placesImprimees(VueSaison vue)
{
    switch (vue) {
    case VueSaison::Clubs:
        return {300, 3700, 4650, 5400, 6250, 7000, 7800, 8550};
    case VueSaison::Licences:
        return {300, 1500, 3900, 6100, 7030, 7790, 8620, 9200, 9900, 10560};
    case VueSaison::Concours:
        break;
    }
    return {300, 1350, 2600, 5600, 7400, 8700, 9600, 10300};
}

} // namespace

FormeSaison::FormeSaison(const Contexte &contexte, QWidget *parent)
    : FormeOutil(contexte, parent)
    , m_ui(std::make_unique<Ui::Saison>())
    , m_modele(std::make_unique<ModeleSaison>(contexte.partage))
{
    m_ui->setupUi(this);
    for (int vue = 0; vue < 3; ++vue)
        m_ui->Vue->addTab(QString());
    m_ui->Lignes->setModel(m_modele.get());
    m_ui->Lignes->setItemDelegate(new BarreSaison(m_ui->Lignes));
    appreteListe(*m_ui->Lignes);
    m_ui->Lignes->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_ui->Lignes->horizontalHeader()->setSectionsClickable(true);
    m_ui->Lignes->setContextMenuPolicy(Qt::CustomContextMenu);
    prepareControles();
    for (QDateEdit *date : {m_ui->Depuis, m_ui->Jusqua})
        connect(date, &QDateEdit::dateChanged, this, [this] { execute([this] { filtre(); }); });
    surChoix(m_ui->Type, [this] { filtre(); });
    connect(m_ui->Vue, &QTabBar::currentChanged, this, [this] { execute([this] { montre(); }); });
    connect(m_ui->Lignes->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int colonne) { execute([this, colonne] { trie(colonne); }); });
    // The heads are out of the keyboard's reach: the menu key sorts by the column of the current cell.
    connect(m_ui->Lignes, &QWidget::customContextMenuRequested, this,
            [this] { execute([this] { trie(m_ui->Lignes->currentIndex().column()); }); });
    connect(new QShortcut(QKeySequence::Copy, m_ui->Lignes, {}, {}, Qt::WidgetShortcut), &QShortcut::activated,
            m_ui->Copier, &QAbstractButton::click);
    surClick(m_ui->Tout, [this] { Tout_Click(); });
    surClick(m_ui->Copier, [this] { Copier_Click(); });
    surClick(m_ui->Exporter, [this] { Exporter_Click(); });
    surClick(m_ui->Imprimer, [this] { Imprimer_Click(); });
    surClick(m_ui->Fermer, [this] { close(); });
}

FormeSaison::~FormeSaison() = default;

void FormeSaison::Form_Load()
{
    traduit();
    m_ui->Lignes->setFocus();
}

void FormeSaison::Form_Activate()
{
    if (aRelire())
        Rafraichir();
}

void FormeSaison::traduit()
{
    m_ui->retranslateUi(this);
    const QStringList vues{tr("Clubs"), tr("Licences"), tr("Concours")};
    for (int vue = 0; vue < vues.size(); ++vue)
        m_ui->Vue->setTabText(vue, vues[vue]);
    for (QDateEdit *date : {m_ui->Depuis, m_ui->Jusqua})
        date->setDisplayFormat(FormatDate(mes(117)));
    proposeTypes();
    montre();
}

void FormeSaison::Rafraichir()
{
    const Sablier sablier;
    proposeDates();
    proposeTypes();
    lit();
}

/// Coming back from another window reads nothing when nothing has been written: in a large base it is a while.
bool FormeSaison::aRelire()
{
    store::Database &base = partage().BaseDonnees;
    return m_base.lock() != base.temoin().lock() || m_changements != base.native().changements();
}

void FormeSaison::lit()
{
    m_base = partage().BaseDonnees.temoin();
    m_changements = partage().BaseDonnees.native().changements();
    {
        PatienceTardive patience(contexte(), tr("Concours comptés"));
        m_saison = LitSaison(partage().BaseDonnees, m_filtre, [&](int faits) { patience.avance(faits); });
    }
    m_jours = JoursDeSaison(m_saison);
    montre();
}

/// The first and the last day of the base stand in the fields that the operator has not set.
void FormeSaison::proposeDates()
{
    QDate premier;
    QDate dernier;
    for (const donnees::Concours &concours : donnees::ListeConcours(partage().BaseDonnees)) {
        if (concours.date.estNull())
            continue;
        const QDate jour = concours.date.date();
        premier = premier.isValid() ? std::min(premier, jour) : jour;
        dernier = dernier.isValid() ? std::max(dernier, jour) : jour;
    }
    const auto pose = [this](QDateEdit *champ, QDate voulue, QDate base) {
        const QSignalBlocker sansEcho(champ);
        champ->setDate(voulue.isValid() ? voulue : base.isValid() ? base : partage().horloge.jour());
    };
    pose(m_ui->Depuis, m_filtre.depuis, premier);
    pose(m_ui->Jusqua, m_filtre.jusqua, dernier);
}

/// The types that the base holds, in the words of their last competition.
void FormeSaison::proposeTypes()
{
    QMap<QString, QString> types;
    for (const donnees::Concours &concours : donnees::ListeConcours(partage().BaseDonnees))
        types.insert(CodeType(concours.type), concours.type);
    m_ui->Type->clear();
    m_ui->Type->addItem(tr("tous"), QString());
    for (const QString &type : types)
        m_ui->Type->addItem(type, type);
    m_filtre.type = types.value(CodeType(m_filtre.type)); // none any more when its last competition has gone
    m_ui->Type->setCurrentIndex(m_filtre.type.isEmpty() ? 0 : m_ui->Type->findData(m_filtre.type));
}

/// A date is a choice once it has been changed.
void FormeSaison::filtre()
{
    if (sender() == m_ui->Depuis)
        m_filtre.depuis = m_ui->Depuis->date();
    else if (sender() == m_ui->Jusqua)
        m_filtre.jusqua = m_ui->Jusqua->date();
    m_filtre.type = m_ui->Type->currentData().toString();
    const Sablier sablier;
    lit();
}

/// The whole base again, whatever it comes to hold.
void FormeSaison::Tout_Click()
{
    m_filtre = {};
    Rafraichir();
    m_ui->Depuis->setFocus(); // the button is off now
}

VueSaison FormeSaison::vue() const
{
    return VueSaison(m_ui->Vue->currentIndex());
}

/// First cell of a row, by which it is known in another reading.
QString FormeSaison::cle(int ligne) const
{
    return ligne < 0 ? QString() : m_modele->texte(ligne, 0);
}

void FormeSaison::montre()
{
    remplit();
    m_ui->Resume->setText(MotsSaison::resume(m_saison));
    const bool vide = m_modele->rowCount() == 0;
    for (QAbstractButton *bouton : {m_ui->Copier, m_ui->Exporter, m_ui->Imprimer})
        bouton->setEnabled(!vide);
    m_ui->Tout->setEnabled(m_filtre.depuis.isValid() || m_filtre.jusqua.isValid() || !m_filtre.type.isEmpty());
    montreCourbe();
}

/// Rows are sorted as they were, and those that were chosen are so again.
void FormeSaison::remplit()
{
    QItemSelectionModel &choix = *m_ui->Lignes->selectionModel();
    const QString courante = cle(choix.currentIndex().row());
    QSet<QString> choisies;
    for (const QModelIndex &ligne : choix.selectedRows())
        choisies += cle(ligne.row());

    m_modele->prend(MotsSaison::table(m_saison, vue()));
    if (tri())
        m_modele->trie(tri()->colonne, tri()->ordre);
    montreTri();
    QHeaderView &tete = *m_ui->Lignes->horizontalHeader();
    tete.setSectionResizeMode(QHeaderView::ResizeToContents);
    const bool barres = m_modele->table().parties >= 0;
    tete.setStretchLastSection(barres);
    if (!barres)
        tete.setSectionResizeMode(colonneSouple, QHeaderView::Stretch);

    int retrouvee = 0;
    QItemSelection selection;
    for (int ligne = 0; ligne < m_modele->rowCount(); ++ligne) {
        if (cle(ligne) == courante)
            retrouvee = ligne;
        if (choisies.contains(cle(ligne)))
            selection.select(m_modele->index(ligne, 0), m_modele->index(ligne, 0));
    }
    if (m_modele->rowCount() > 0)
        m_ui->Lignes->setCurrentIndex(m_modele->index(retrouvee, 0));
    choix.select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QStringList FormeSaison::dates() const
{
    QStringList dates;
    for (const JourDeSaison &jour : m_jours)
        dates += FormateDate(jour.jour, mes(117));
    return dates;
}

void FormeSaison::montreCourbe()
{
    m_ui->Courbe->montre(m_jours, dates());
}

void FormeSaison::montreTri()
{
    QHeaderView &tete = *m_ui->Lignes->horizontalHeader();
    tete.setSortIndicatorShown(tri().has_value());
    if (tri())
        tete.setSortIndicator(tri()->colonne, tri()->ordre);
}

/// The same column again turns round.
void FormeSaison::trie(int colonne)
{
    if (colonne >= 0 && colonne < m_modele->table().colonnes()) {
        const bool encore = tri() && tri()->colonne == colonne;
        const Qt::SortOrder inverse =
            encore && tri()->ordre == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
        tri() = Tri{colonne, encore ? inverse : m_modele->table().premierOrdre(colonne)};
        m_modele->trie(colonne, tri()->ordre);
        m_ui->Lignes->setCurrentIndex(m_modele->index(0, colonne));
        m_ui->Lignes->clearSelection();
    }
    montreTri();
}

QString FormeSaison::titre() const
{
    if (m_jours.empty())
        return windowTitle();
    return tr("Saison du %1 au %2")
        .arg(FormateDate(m_ui->Depuis->date(), mes(117)), FormateDate(m_ui->Jusqua->date(), mes(117)));
}

/// Rows as they stand on the screen, the chosen ones alone where some are chosen.
std::vector<QStringList> FormeSaison::textes(bool choisiesSeules) const
{
    const QItemSelectionModel &choix = *m_ui->Lignes->selectionModel();
    std::vector<QStringList> lignes;
    for (int ligne = 0; ligne < m_modele->rowCount(); ++ligne) {
        if (choisiesSeules && choix.hasSelection() && !choix.isRowSelected(ligne))
            continue;
        QStringList cellules;
        for (int colonne = 0; colonne < m_modele->table().colonnes(); ++colonne)
            cellules += m_modele->texte(ligne, colonne);
        lignes.push_back(cellules);
    }
    return lignes;
}

void FormeSaison::Copier_Click()
{
    QGuiApplication::clipboard()->setText(TexteTabule(m_modele->table().entetes, textes(true)));
}

void FormeSaison::Exporter_Click()
{
    const QString propose = m_ui->Vue->tabText(m_ui->Vue->currentIndex()).toLower() + u".csv"_qs;
    const QString chemin =
        boites().ShowSave({.DialogTitle = tr("Exporter la liste"), .DefaultExt = u"csv"_qs, .FileName = propose});
    if (chemin.isEmpty())
        return;
    QSaveFile fichier(chemin);
    fichier.setDirectWriteFallback(true);
    const QByteArray octets = FichierCsv(m_modele->table().entetes, textes(false));
    if (fichier.open(QIODevice::WriteOnly) && fichier.write(octets) == octets.size() && fichier.commit())
        MsgBox(tr("La liste est dans %1.").arg(QDir::toNativeSeparators(chemin)));
    else
        MsgBox(tr("La liste n'a pas pu être écrite : %1").arg(fichier.errorString()), vbExclamation);
}

void FormeSaison::Imprimer_Click()
{
    std::vector<bool> nombres;
    for (int colonne = 0; colonne < m_modele->table().colonnes(); ++colonne)
        nombres.push_back(m_modele->table().estNombre(colonne));
    ListeSaison liste{.titre = titre(),
                      .type = m_filtre.type,
                      .resume = m_ui->Resume->text(),
                      .entetes = m_modele->table().entetes,
                      .places = placesImprimees(vue()),
                      .nombres = nombres,
                      .lignes = textes(false),
                      .titreCourbe = m_ui->Courbe->accessibleName(),
                      .jours = m_jours,
                      .dates = dates()};
    for (int ligne = 0; m_modele->table().parties >= 0 && ligne < m_modele->rowCount(); ++ligne)
        liste.barres.push_back(m_modele->barre(ligne));
    ImprimeSaison(contexte(), liste);
}
