#include "registration/listjo.h"

#include "donnees/clubs.h"
#include "donnees/equipes.h"
#include "fenetres/formulaires.h"
#include "fenetres/frappe.h"
#include "noms/formes.h"
#include "noms/passation.h"
#include "partage/routines.h"
#include "printing/imprime_liste.h"
#include "registration/forme_inscription.h"
#include "ui_listjo.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

constexpr int colonneLicence = 2;

} // namespace

listjo::listjo(const Contexte &contexte, QWidget *parent)
    : FormeListe(contexte, parent)
    , m_ui(std::make_unique<Ui::listjo>())
{
    m_ui->setupUi(this);
    prepareControles();
    prendGrille(m_ui->Les_équipes, [this](int bouton, int ligne) { Les_équipes_MouseUp(bouton, ligne); });
    surClick(m_ui->Rafraichir, [this] { Rafraichir_Click(); });
    surClick(m_ui->imprimer, [this] { imprimer_Click(); });
}

listjo::~listjo() = default;

std::vector<Infobulle> listjo::infobulles() const
{
    return {{m_ui->Les_équipes, mes(148)}, {m_ui->Rafraichir, mes(151)}, {m_ui->imprimer, mes(154)}};
}

void listjo::LegendesListjo()
{
    FenetreDessus(*this, false);
    setWindowTitle(u"Liste des joueurs Pré-enregistrés"_qs);
}

void listjo::Form_Load()
{
    LegendesListjo();
}

QString listjo::format() const
{
    return u"< N° |<"_qs + complete(mes(19) + u'-' + mes(20), 40) + u"|<"_qs + complete(mes(21), 15) + u"|<"_qs
        + complete(mes(18), 30) + u"|<Date nais.     |<Sexe"_qs;
}

QString listjo::clubRetenu() const
{
    const QString &club = passation(formulaires()).ClubFiltre;
    const bool filtre = passation(formulaires()).FormeAppelante == formes::Eequipes && !donnees::EstPanache(club);
    return filtre ? club : QString();
}

void listjo::Form_Activate()
{
    if (passation(formulaires()).SelectionEnCours)
        return;
    LegendesListjo();
    const QString club = clubRetenu();
    if (!club.isEmpty())
        setWindowTitle(windowTitle() + u" (%1)"_qs.arg(club));
    remplit(format(), [this, &club] {
        for (const donnees::Membre &joueur : donnees::JoueursConnus(partage().BaseDonnees, club))
            ajoute({QString::number(joueur.equipe), joueur.nom + u' ' + joueur.prenom, joueur.licence, joueur.club,
                    joueur.ne.texte(), joueur.sexe});
    });
}

void listjo::Rafraichir_Click()
{
    passation(formulaires()).SelectionEnCours = false;
    oublieTris();
    Form_Activate();
    passation(formulaires()).SelectionEnCours = true;
}

void listjo::Les_équipes_MouseUp(int Button, int ligne)
{
    if (Button == Bouton::Droit) {
        trieParColonne();
        passation(formulaires()).SelectionEnCours = false;
        return;
    }
    const FlexGrid &grille = *m_ui->Les_équipes;
    Formulaire *appelante = formulaires().forme(passation(formulaires()).FormeAppelante);
    // Several rows are chosen to be printed.
    if (appelante == nullptr || ligne < 1 || grille.RowSel() < 1 || grille.Row() != grille.RowSel())
        return;
    if (appelante->Name() == formes::Ejoueurs)
        donneNumero(*appelante, grille.RowSel());
    else if (appelante->Name() == formes::Eequipes)
        donneLicence(*appelante, grille.RowSel());
}

void listjo::donneNumero(Formulaire &joueurs, int ligne)
{
    const qint64 choisi = m_ui->Les_équipes->TextMatrix(ligne, 0).toLongLong();
    auto *Equipe = joueurs.findChild<QComboBox *>(u"Equipe"_qs);
    if (Equipe == nullptr || !donnees::EquipeExiste(partage().BaseDonnees, donnees::fichierJoueurs, choisi))
        return;
    const QString numero = NumeroAffiche(choisi);
    passation(formulaires()).SelectionEnCours = true;
    SetFocus(joueurs, Equipe, [Equipe, numero] {
        Equipe->setEditText(numero);
        SendKeys(Qt::Key_Tab);
        SendKeys(Qt::Key_Return);
    });
}

void listjo::donneLicence(Formulaire &equipes, int ligne)
{
    passation(formulaires()).SelectionEnCours = true;
    for (int i = 0; i < partage().NbJoueurs; ++i) {
        auto *LicenceJ = equipes.findChild<QLineEdit *>(u"LicenceJ_%1"_qs.arg(i));
        if (LicenceJ == nullptr || !LicenceJ->text().isEmpty())
            continue;
        m_ui->Les_équipes->setCol(colonneLicence);
        const QString licence = m_ui->Les_équipes->TextMatrix(ligne, colonneLicence);
        SetFocus(equipes, LicenceJ, [LicenceJ, licence] {
            LicenceJ->setText(licence);
            SendKeys(Qt::Key_Return);
        });
        return;
    }
}

void listjo::imprimer_Click()
{
    ImprimeListe(contexte(), formes::listjo, *m_ui->Les_équipes);
}
