#include "registration/listesoc.h"

#include "donnees/clubs.h"
#include "fenetres/formulaires.h"
#include "grille/flexgrid.h"
#include "noms/formes.h"
#include "noms/passation.h"
#include "partage/routines.h"
#include "store/collation.h"
#include "ui_listesoc.h"

#include <QKeyEvent>

namespace {

constexpr quint32 couleurChoix = 16744448;
/// Control character of Ctrl and Q, which leaves the search as it is.
constexpr int codeCtrlQ = 17;
/// The first club in order is the one of mixed teams: it stays.
constexpr int ligneProtegee = 1;

} // namespace

Listesoc::Listesoc(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::Listesoc>())
{
    m_ui->setupUi(this);
    prepareControles();
    relie();
}

Listesoc::~Listesoc() = default;

std::vector<Infobulle> Listesoc::infobulles() const
{
    return {{m_ui->Recherche, mes(152)},
            {m_ui->Liste_soc, mes(149)},
            {m_ui->Command1, mes(150)},
            {m_ui->Command2, mes(151)}};
}

void Listesoc::relie()
{
    connect(m_ui->Recherche, &QLineEdit::textChanged, this, [this] { execute([this] { Recherche_Change(); }); });
    connect(m_ui->Liste_soc, &FlexGrid::touche, this, [this](const QKeyEvent *evenement) {
        const QString caractere = evenement->text();
        if (!caractere.isEmpty())
            execute([&] { Liste_soc_KeyPress(caractere.front().unicode()); });
    });
    connect(m_ui->Liste_soc, &FlexGrid::mouseRelache, this,
            [this](Qt::MouseButton bouton, Qt::KeyboardModifiers touches, int ligne) {
                if (ligne >= 1)
                    execute([&] { Liste_soc_MouseUp(CodeBouton(bouton), EtatMaj(touches)); });
            });
    surClick(m_ui->Command1, [this] { Command1_Click(); });
    surClick(m_ui->Command2, [this] { Command2_Click(); });
}

void Listesoc::LegendesListesoc()
{
    FenetreDessus(*this, false);
    setWindowTitle(mes(31));
    m_ui->Liste_soc->setAccessibleName(mes(31));
}

void Listesoc::Form_Load()
{
    LegendesListesoc();
    FlexGrid &grille = *m_ui->Liste_soc;
    m_ligneEclairee = 0;
    grille.setRows(1);
    grille.setCols(1);
    grille.setFormatString(u'<' + mes(31));
    for (const donnees::Club &club : donnees::ListeClubs(partage().BaseDonnees))
        grille.AddItem(club.nom);
}

void Listesoc::eclaire(int ligne)
{
    FlexGrid &grille = *m_ui->Liste_soc;
    if (m_ligneEclairee >= 1 && m_ligneEclairee < grille.Rows())
        grille.setCellBackColor(m_ligneEclairee, 0, FlexGrid::FondFenetre);
    if (ligne >= 1 && ligne < grille.Rows())
        grille.setCellBackColor(ligne, 0, couleurChoix);
    m_ligneEclairee = qint16(ligne);
}

int Listesoc::chercheClub(const QString &debut) const
{
    const FlexGrid &grille = *m_ui->Liste_soc;
    for (int ligne = 1; ligne < grille.Rows(); ++ligne) {
        // The order of the rows decides what comes behind, so it is their order that compares.
        if (store::CompareFrancais(grille.TextMatrix(ligne, 0).left(debut.size()), debut) >= 0)
            return ligne;
    }
    return 0;
}

void Listesoc::Recherche_Change()
{
    FlexGrid &grille = *m_ui->Liste_soc;
    const int ligne = chercheClub(m_ui->Recherche->text());
    eclaire(ligne);
    grille.setTopRow(ligne);
    grille.setRow(ligne);
}

void Listesoc::Liste_soc_KeyPress(int KeyAscii)
{
    const QChar caractere{char16_t(KeyAscii)};
    if (caractere.isPrint())
        m_ui->Recherche->setText(m_ui->Recherche->text() + caractere);
    else if (KeyAscii != codeCtrlQ)
        m_ui->Recherche->clear();
}

void Listesoc::Liste_soc_MouseUp(int Button, int Shift)
{
    FlexGrid &grille = *m_ui->Liste_soc;
    const int choisie = grille.RowSel();
    if (choisie < 1)
        return;
    eclaire(choisie);
    if (Button != Bouton::Gauche)
        return;
    const QString club = grille.TextMatrix(choisie, 0);
    if (Shift == Maj::Controle) {
        filtreJoueurs(club);
    } else if ((Shift & Maj::Controle) == 0) {
        grille.setRow(choisie);
        DoEvents();
        donneClub(club);
    }
}

void Listesoc::donneClub(const QString &club)
{
    const Formulaire *appelante = formulaires().forme(passation(formulaires()).FormeAppelante);
    if (auto *champ = appelante == nullptr ? nullptr : appelante->findChild<QLineEdit *>(u"Société"_qs))
        champ->setText(club);
    passation(formulaires()).ClubFiltre = club;
}

void Listesoc::filtreJoueurs(const QString &club)
{
    passation(formulaires()).ClubFiltre = club;
    if (Formulaire *joueurs = formulaires().forme(formes::listjo))
        joueurs->Rafraichir();
    DoEvents();
}

void Listesoc::Command1_Click()
{
    FlexGrid &grille = *m_ui->Liste_soc;
    const int ligne = grille.Row();
    const QString club = ligne >= 1 ? grille.Text() : QString();
    if (ligne <= ligneProtegee) {
        MsgBox(u"Impossible de supprimer "_qs + club);
        return;
    }
    if (MsgBox(u"Supprimer "_qs + club, vbYesNo) != ReponseBoite::Oui)
        return;
    donnees::SupprimeClub(partage().BaseDonnees, club);
    retireLigne(ligne);
}

/// The later texts move up; the highlight stays where it is.
void Listesoc::retireLigne(int ligne)
{
    FlexGrid &grille = *m_ui->Liste_soc;
    for (; ligne + 1 < grille.Rows(); ++ligne)
        grille.setTextMatrix(ligne, 0, grille.TextMatrix(ligne + 1, 0));
    grille.setRows(grille.Rows() - 1);
}

void Listesoc::Command2_Click()
{
    m_ui->Recherche->clear();
    Form_Load();
}
