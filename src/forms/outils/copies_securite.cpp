#include "outils/copies_securite.h"

#include "fenetres/copie_prealable.h"
#include "fenetres/formulaires.h"
#include "fenetres/liste_a_choisir.h"
#include "fenetres/sablier.h"
#include "garde/restauration.h"
#include "noms/changement_base.h"
#include "noms/formes.h"
#include "outils/mots_copies.h"
#include "partage/base.h"
#include "partage/concours_courant.h"
#include "partage/routines.h"
#include "ui_copies_securite.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>

namespace {

const QString saut = u"\r\n"_qs;
constexpr int colonneEcart = 5;
constexpr int colonneLieu = 2;

QString nomFichier(const QString &chemin)
{
    return QFileInfo(chemin).fileName();
}

} // namespace

CopiesSecurite::CopiesSecurite(const Contexte &contexte, QWidget *parent)
    : FormeOutil(contexte, parent)
    , m_ui(std::make_unique<Ui::CopiesSecurite>())
{
    m_ui->setupUi(this);
    appreteListe(*m_ui->Copies);
    appreteListe(*m_ui->Concours);
    m_ui->Concours->horizontalHeader()->setStretchLastSection(false);
    m_ui->Concours->horizontalHeader()->setSectionResizeMode(colonneLieu, QHeaderView::Stretch);
    prepareControles();
    surClick(m_ui->Restaurer, [this] { Restaurer_Click(); });
    surClick(m_ui->Copier_maintenant, [this] { Copier_maintenant_Click(); });
    surClick(m_ui->Copier_vers, [this] { Copier_vers_Click(); });
    surClick(m_ui->Fermer, [this] { close(); });
    connect(m_ui->Copies, &QTableWidget::itemSelectionChanged, this, [this] { montreConcours(); });
    connect(&m_lecture, &QTimer::timeout, this, [this] { execute([this] { litSuivante(); }); });
}

CopiesSecurite::~CopiesSecurite() = default;

void CopiesSecurite::Form_Load()
{
    traduit();
}

void CopiesSecurite::Form_Activate()
{
    Rafraichir();
}

void CopiesSecurite::traduit()
{
    m_ui->retranslateUi(this);
    m_ui->Copies->setHorizontalHeaderLabels(MotsCopies::entetes() << tr("Par rapport à la base"));
    m_ui->Concours->setHorizontalHeaderLabels(
        {tr("Concours"), tr("Date"), tr("Lieu"), tr("Type"), tr("Equipes"), tr("Tours"), tr("Résultats")});
    montreBase();
    for (std::size_t i = 0; i < m_lignes.size(); ++i)
        montreLigne(int(i));
    montreConcours();
}

void CopiesSecurite::Rafraichir()
{
    const Ligne *ancienne = choisie();
    const QString fichier = ancienne != nullptr ? ancienne->copie.fichier : QString();
    m_base = FaitInventaire(partage().BaseDonnees.native());
    montreBase();
    m_lignes.clear();
    std::vector<Copie> copies = ListeCopies(partage().DossierProgramme);
    std::ranges::reverse(copies);
    int aChoisir = 0;
    for (const Copie &copie : copies) {
        if (copie.fichier == fichier)
            aChoisir = int(m_lignes.size());
        m_lignes.push_back({.copie = copie, .inventaire = {}});
    }
    m_ui->Copies->setRowCount(int(m_lignes.size()));
    for (std::size_t i = 0; i < m_lignes.size(); ++i)
        montreLigne(int(i));
    if (!m_lignes.empty())
        m_ui->Copies->selectRow(aChoisir);
    montreConcours();
    partage().BaseDonnees.native().prepareCopies(motDePasseBase);
    m_lecture.start(0);
}

/// One copy a turn of the event loop: each may take a tenth of a second.
void CopiesSecurite::litSuivante()
{
    const auto suivante = std::ranges::find(m_lignes, false, &Ligne::lue);
    if (suivante == m_lignes.end() || !partage().BaseDonnees.estOuverte()) {
        m_lecture.stop();
        return;
    }
    suivante->lue = true;
    try {
        suivante->inventaire = InventaireDe(suivante->copie.fichier);
        suivante->identique =
            *suivante->inventaire == m_base && partage().BaseDonnees.native().estDans(suivante->copie.fichier);
    } catch (const store::Erreur &) {
        suivante->inventaire.reset(); // its row says so
    }
    montreLigne(int(suivante - m_lignes.begin()));
    montreConcours();
}

void CopiesSecurite::montreBase()
{
    m_ui->Base_en_service->setText(tr("Base en service : %1.").arg(MotsCopies::contenu(m_base)));
}

QString CopiesSecurite::differences(const Ligne &ligne) const
{
    if (!ligne.lue)
        return tr("lecture en cours");
    if (!ligne.inventaire)
        return tr("copie illisible");
    if (ligne.identique)
        return tr("identique");
    const QString ecart = MotsCopies::ecart(*ligne.inventaire, m_base);
    return ecart.isEmpty() ? tr("mêmes nombres, contenu différent") : ecart;
}

void CopiesSecurite::montreLigne(int ligne)
{
    const Ligne &montree = m_lignes[std::size_t(ligne)];
    QStringList textes = montree.inventaire ? MotsCopies::ligne(partage(), montree.copie, *montree.inventaire)
                                            : QStringList{MotsCopies::moment(partage(), montree.copie),
                                                          MotsCopies::raison(montree.copie.raison),
                                                          {},
                                                          {},
                                                          {}};
    textes.insert(colonneEcart, differences(montree));
    ecritLigne(*m_ui->Copies, ligne, textes);
}

const CopiesSecurite::Ligne *CopiesSecurite::choisie() const
{
    const QModelIndexList lignes = m_ui->Copies->selectionModel()->selectedRows();
    const std::size_t ligne = lignes.isEmpty() ? m_lignes.size() : std::size_t(lignes.constFirst().row());
    return ligne < m_lignes.size() ? &m_lignes[ligne] : nullptr;
}

/// What the chosen copy holds, competition by competition.
void CopiesSecurite::montreConcours()
{
    const Ligne *ligne = choisie();
    const bool lisible = ligne != nullptr && ligne->inventaire.has_value();
    m_ui->Restaurer->setEnabled(lisible);
    m_ui->Difference->setText(ligne == nullptr ? QString()
                                               : tr("Par rapport à la base : %1.").arg(differences(*ligne)));
    m_ui->Concours->setRowCount(lisible ? int(ligne->inventaire->concours.size()) : 0);
    for (int i = 0; i < m_ui->Concours->rowCount(); ++i) {
        const ConcoursTenu &tenu = ligne->inventaire->concours[std::size_t(i)];
        ecritLigne(*m_ui->Concours, i,
                   {NumeroConcours(tenu.numero), FormateDate(tenu.jour, mes(117)), tenu.lieu, tenu.type,
                    QString::number(tenu.equipes), QString::number(tenu.tours), QString::number(tenu.resultats)});
    }
}

void CopiesSecurite::Copier_maintenant_Click()
{
    const std::size_t avant = ListeCopies(partage().DossierProgramme).size();
    const QString derniere = m_lignes.empty() ? QString() : m_lignes.front().copie.fichier;
    BilanCopie bilan;
    {
        const Sablier sablier;
        bilan = SauveBase(partage(), RaisonCopie::Demande);
    }
    if (bilan.echouee())
        MsgBox(tr("La copie n'a pas pu être faite : %1").arg(bilan.cause), vbExclamation);
    else if (bilan.fichier == derniere && ListeCopies(partage().DossierProgramme).size() == avant)
        MsgBox(tr("La dernière copie contient déjà tout : %1.").arg(nomFichier(bilan.fichier)));
    else
        MsgBox(tr("Copie faite : %1.").arg(nomFichier(bilan.fichier)));
    Rafraichir();
}

void CopiesSecurite::Copier_vers_Click()
{
    const QString propose = u"VarloBase-%1-%2.mdb"_qs.arg(partage().horloge.jour().toString(u"yyyyMMdd"_qs),
                                                          partage().horloge.heure().toString(u"HHmm"_qs));
    const QString fichier =
        boites().ShowSave({.DialogTitle = tr("Copier la base vers"), .DefaultExt = u"mdb"_qs, .FileName = propose});
    if (fichier.isEmpty())
        return;
    std::optional<EchecCopieVers> echec;
    {
        const Sablier sablier;
        echec = CopieVers(partage(), fichier);
    }
    const QString affiche = QDir::toNativeSeparators(fichier);
    if (!echec)
        MsgBox(tr("La copie %1 est écrite, relue et complète.").arg(affiche));
    else if (*echec == EchecCopieVers::BaseElleMeme)
        MsgBox(tr("%1 est la base en service : choisissez un autre nom.").arg(affiche), vbExclamation);
    else if (*echec == EchecCopieVers::Relecture)
        MsgBox(tr("Ce qui a été écrit dans %1 ne se relit pas : rien n'y est resté. Essayez un autre support.")
                   .arg(affiche),
               vbExclamation);
    else
        MsgBox(tr("La copie %1 n'a pas pu être écrite : regardez la place et les droits.").arg(affiche), vbExclamation);
}

void CopiesSecurite::Restaurer_Click()
{
    const Ligne *ligne = choisie();
    if (ligne == nullptr || !ligne->inventaire)
        return;
    const QString question = tr("Restaurer la copie du %1 ?").arg(MotsCopies::moment(partage(), ligne->copie)) + saut
        + tr("Elle contient %1.").arg(MotsCopies::contenu(*ligne->inventaire)) + saut
        + tr("Par rapport à la base : %1.").arg(differences(*ligne)) + saut + saut
        + tr("Une copie de la base actuelle est faite d'abord : la restaurer à son tour annule ce geste.");
    if (MsgBox(question, vbYesNo | vbExclamation | vbDefaultButton2) == ReponseBoite::Oui)
        remet(Copie(ligne->copie));
}

void CopiesSecurite::remet(const Copie &copie)
{
    m_lecture.stop();
    QString faite;
    {
        const Sablier sablier;
        PrepareRestauration(partage(), copie.fichier);
        const BilanCopie bilan = SauveBase(partage(), RaisonCopie::Restauration);
        if (bilan.echouee() && !ContinueSansCopie(boites(), bilan.cause)) {
            AbandonneRestauration(partage().DossierProgramme);
            return;
        }
        faite = nomFichier(bilan.fichier);
        // The other forms show rows that are about to go.
        std::vector<NomForme> autres = changementBase(formulaires()).formes;
        std::erase(autres, formes::CopiesSecurite);
        formulaires().Decharge(autres);
        Restaure(partage(), FichiersBase());
        changementBase(formulaires()).metEnService();
    }
    Rafraichir();
    const QString phrase = tr("La copie du %1 est en place.").arg(MotsCopies::moment(partage(), copie));
    MsgBox(faite.isEmpty() ? phrase : phrase + saut + tr("La base d'avant est dans la copie %1.").arg(faite));
    SetFocus(m_ui->Copies); // the button is disabled until the copies have been read again
}
