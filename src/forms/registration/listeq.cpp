#include "registration/listeq.h"

#include "donnees/clubs.h"
#include "donnees/equipes.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "partage/routines.h"
#include "printing/imprime_detail.h"
#include "printing/imprime_liste.h"
#include "registration/fichier_equipes.h"
#include "ui_listeq.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int largeurConcours = 6;

/// Text of a label of the registration form, \p sinon when that form is closed.
QString libelle(const Formulaires &formulaires, const QString &nom, const QString &sinon)
{
    const Formulaire *inscription = formulaires.forme(formes::Eequipes);
    const auto *label = inscription == nullptr ? nullptr : inscription->findChild<QLabel *>(nom);
    return label == nullptr ? sinon : label->text();
}

} // namespace

listeq::listeq(const Contexte &contexte, QWidget *parent)
    : FormeListe(contexte, parent)
    , m_ui(std::make_unique<Ui::listeq>())
{
    m_ui->setupUi(this);
    prepareControles();
    prendGrille(m_ui->Les_équipes, [this](int bouton, int ligne) { Les_équipes_MouseUp(bouton, ligne); });
    surClick(m_ui->imprimer, [this] { imprimer_Click(); });
    surClick(m_ui->imprimer_selection, [this] { imprimer_selection_Click(); });
}

listeq::~listeq() = default;

std::vector<Infobulle> listeq::infobulles() const
{
    return {{m_ui->Les_équipes, mes(148)}, {m_ui->imprimer, mes(153)}, {m_ui->imprimer_selection, mes(154)}};
}

/// Beside the results form, whose fields must stay free.
void listeq::Form_Load()
{
    const Formulaire *resultats = formulaires().forme(formes::EResultats);
    if (pourLesResultats() && resultats != nullptr)
        Move(0, resultats->Top(), std::min(Width(), resultats->Left()), resultats->Height());
}

void listeq::LegendesListeq()
{
    FenetreDessus(*this, false);
    m_ui->Les_équipes->setAccessibleName(mes(30));
    setWindowTitle(mes(30) + u" - "_qs + mes(1) + u' ' + ZeroPad(partage().ConcoursCourant, largeurConcours));
}

QString listeq::format() const
{
    return u'<' + complete(mes(17), 7) + u"|<"_qs + complete(mes(19) + u'-' + mes(20), 40) + u"|<"_qs
        + complete(mes(21), 15) + u"|<"_qs + complete(mes(18), 30);
}

void listeq::Form_Activate()
{
    LegendesListeq();
    m_ui->imprimer_selection->setVisible(!pourLesResultats());
    std::optional<FichierEquipes> fichier;
    remplit(format(), [&] {
        if (!pourLesResultats())
            ecritTitres(fichier.emplace());
        ajouteEquipes(fichier ? &*fichier : nullptr);
    });
    if (fichier)
        enregistre(*fichier);
}

/// Adds the members with their teams' numbers, and tells them to \p fichier; without a file, the first one of each
/// team.
void listeq::ajouteEquipes(FichierEquipes *fichier)
{
    const qint32 concours = partage().ConcoursCourant;
    const donnees::ClubsConnus clubs(partage().BaseDonnees, concours);
    std::optional<qint64> precedente;
    for (const donnees::Membre &membre : donnees::MembresDuConcours(partage().BaseDonnees, concours)) {
        const bool nouvelle = precedente != membre.equipe;
        precedente = membre.equipe;
        if (fichier == nullptr && !nouvelle)
            continue;
        const std::optional<QString> club = clubs.club(membre.licence);
        QString societe = club.value_or(membre.club);
        if (!club && donnees::EstPanache(societe))
            societe = u"."_qs;
        const QString numero = QString::number(membre.equipe);
        ajoute({nouvelle ? numero : QString(), membre.nom + u' ' + membre.prenom, membre.licence, societe});
        if (fichier != nullptr)
            fichier->membre(membre.nom + u'-' + membre.prenom, membre.licence, numero, club.value_or(QString()));
    }
}

void listeq::ecritTitres(FichierEquipes &fichier) const
{
    fichier.ligne(libelle(formulaires(), u"Lieuc"_qs, partage().LieuConcours));
    fichier.ligne(u"Concours du "_qs + libelle(formulaires(), u"datec"_qs, partage().DateConcours) + u"  "_qs
                  + TailleEquipe(partage().NbJoueurs)
                  + libelle(formulaires(), u"categorie"_qs, partage().CategorieConcours));
    fichier.titres(mes(17), mes(18), mes(19) + u'-' + mes(20), mes(21));
}

void listeq::enregistre(const FichierEquipes &fichier)
{
    const QString chemin = QDir(partage().DossierProgramme).filePath(FichierEquipes::nom);
    const QString faute = fichier.ecrit(chemin);
    if (!faute.isEmpty())
        MsgBox(u"Le fichier %1 n'a pas pu être écrit : %2.\nLa liste est affichée ; le fichier, s'il existe, "
               u"est resté le même."_qs.arg(QDir::toNativeSeparators(chemin), faute),
               vbExclamation);
}

void listeq::Les_équipes_MouseUp(int Button, int ligne)
{
    if (Button == Bouton::Droit) {
        trieParColonne();
        return;
    }
    const int choisie = m_ui->Les_équipes->RowSel();
    if (Button == Bouton::Gauche && pourLesResultats() && ligne >= 1 && choisie >= 1)
        donneNumero(m_ui->Les_équipes->TextMatrix(choisie, 0));
}

/// The number goes where the operator was about to type it, and the keyboard goes back there with it.
void listeq::donneNumero(const QString &numero)
{
    const Formulaire *resultats = formulaires().forme(formes::EResultats);
    if (resultats == nullptr)
        return;
    auto *champ = resultats->controle<QLineEdit>(u"Equipe1"_qs);
    auto *second = resultats->controle<QLineEdit>(u"Equipe2"_qs);
    if (resultats->focusWidget() == second)
        champ = second;
    champ->setText(numero);
    SetFocus(champ);
}

void listeq::imprimer_Click()
{
    ImprimeDetail(contexte());
}

void listeq::imprimer_selection_Click()
{
    ImprimeListe(contexte(), formes::listeq, *m_ui->Les_équipes);
}
