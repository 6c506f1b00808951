#include "registration/listjo.h"

#include "app/routines.h"
#include "engine/clubs.h"
#include "platform/formulaires.h"
#include "platform/frappe.h"
#include "printing/imprime_liste.h"
#include "registration/equipe_inscrite.h"
#include "ui_listjo.h"

#include <QComboBox>
#include <QLineEdit>

using store::Recordset;

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
    return u"< N° |<"_qs + cadre(mes(19) + u'-' + mes(20), 40) + u"|<"_qs + cadre(mes(21), 15) + u"|<"_qs
        + cadre(mes(18), 30) + u"|<Date nais.     |<Sexe"_qs;
}

QString listjo::clubRetenu() const
{
    const bool filtre = partage().FormeAppelante == u"Eequipes" && partage().ClubFiltre != moteur::clubPanache;
    return filtre ? partage().ClubFiltre : QString();
}

void listjo::Form_Activate()
{
    if (partage().SelectionEnCours)
        return;
    LegendesListjo();
    QString condition = u" where concours= 0 order by nom,societe"_qs;
    if (const QString club = clubRetenu(); !club.isEmpty()) {
        condition = u" where concours= 0 and societe='%1' order by nom"_qs.arg(QString(club).replace(u"'"_qs, u"''"_qs));
        setWindowTitle(windowTitle() + u" (%1)"_qs.arg(club));
    }
    remplit(format(), [this, &condition] {
        Recordset joueurs = partage().BaseDonnees.OpenRecordset(u"select * from equipes "_qs + condition);
        for (; !joueurs.Eof(); joueurs.MoveNext())
            ajoute({joueurs[u"Equipe"].texte(), joueurs[u"Nom"].texte() + u' ' + joueurs[u"Prenom"].texte(),
                    joueurs[u"Licence"].texte(), joueurs[u"Societe"].texte(), joueurs[u"ne"].texte(),
                    joueurs[u"sexe"].texte()});
    });
}

void listjo::Rafraichir_Click()
{
    partage().SelectionEnCours = false;
    oublieTris();
    Form_Activate();
    partage().SelectionEnCours = true;
}

void listjo::Les_équipes_MouseUp(int Button, int ligne)
{
    if (Button == Bouton::Droit) {
        trieParColonne();
        partage().SelectionEnCours = false;
        return;
    }
    const FlexGrid &grille = *m_ui->Les_équipes;
    Formulaire *appelante = formulaires().forme(partage().FormeAppelante);
    // Several rows are chosen to be printed.
    if (appelante == nullptr || ligne < 1 || grille.RowSel() < 1 || grille.Row() != grille.RowSel())
        return;
    if (appelante->Name() == u"Ejoueurs")
        donneNumero(*appelante, grille.RowSel());
    else if (appelante->Name() == u"Eequipes")
        donneLicence(*appelante, grille.RowSel());
}

void listjo::donneNumero(Formulaire &joueurs, int ligne)
{
    const Recordset joueur = partage().BaseDonnees.OpenRecordset(
        u"select * from equipes where concours = 0 and Equipe="_qs + m_ui->Les_équipes->TextMatrix(ligne, 0));
    auto *Equipe = joueurs.findChild<QComboBox *>(u"Equipe"_qs);
    if (joueur.Eof() || Equipe == nullptr)
        return;
    const QString numero = NumeroAffiche(joueur[u"Equipe"].entier());
    partage().SelectionEnCours = true;
    SetFocus(joueurs, Equipe, [Equipe, numero] {
        Equipe->setEditText(numero);
        SendKeys(Qt::Key_Tab);
        SendKeys(Qt::Key_Return);
    });
}

void listjo::donneLicence(Formulaire &equipes, int ligne)
{
    partage().SelectionEnCours = true;
    for (int i = 0; i < partage().NbJoueurs; ++i) {
        QLineEdit *LicenceJ = equipes.champTexte(u"LicenceJ_%1"_qs.arg(i));
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
    ImprimeListe(contexte(), Name(), *m_ui->Les_équipes);
}
