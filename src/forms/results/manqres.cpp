#include "results/manqres.h"

#include "donnees/rencontres.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "results/affichage_attendus.h"
#include "results/detail_resultats.h"
#include "results/etat_resultats.h"
#include "results/grille_resultats.h"
#include "results/groupes.h"
#include "socle/twips.h"
#include "ui_manqres.h"

#include <QStyle>

namespace {

} // namespace

manqres::manqres(const Contexte &contexte, QWidget *parent)
    : VueResultats(contexte, parent)
    , m_ui(std::make_unique<Ui::manqres>())
{
    m_ui->setupUi(this);
    prepareControles();
    grille(0).setSensCouleur(grille::rouge, u"pas encore lancée"_qs);
    for (const int equipe : {1, 2})
        grille(0).setTitreLu(equipe + 2, u"Score %1"_qs.arg(equipe));
    for (const int index : {0, 1})
        surPression(&grille(index), [this, index](int bouton, int ligne, int colonne) {
            les_resultats_MouseDown(index, bouton, ligne, colonne);
        });
    surClick(m_ui->classement, [this] {
        classement_Click();
        rendClavier();
    });
}

manqres::~manqres() = default;

std::vector<Infobulle> manqres::infobulles() const
{
    return {{m_ui->les_resultats_0, mes(143)}, {m_ui->les_resultats_1, mes(144)}};
}

FlexGrid &manqres::grille(int index) const
{
    return index == 0 ? *m_ui->les_resultats_0 : *m_ui->les_resultats_1;
}

void manqres::LegendesManqres()
{
    FenetreDessus(*this, false);
}

void manqres::Form_Load()
{
    montreAttendus(true);
}

void manqres::Form_Activate()
{
    if (!etatResultats(formulaires()).AttendusAJour) {
        AfficheAttendus(partage(), formulaires());
        etatResultats(formulaires()).AttendusAJour = true;
    }
    update();
    placeForme();
}

void manqres::Form_Unload()
{
    formulaires().Decharge({formes::Groupes, formes::DetailResultats});
}

void manqres::Rafraichir()
{
    AfficheAttendus(partage(), formulaires());
}

/// `Groupes` comes with the view, as soon as there is a ranking, and stands between it and the results form.
void manqres::placePres(const Formulaire &saisie)
{
    int gauche = saisie.Left() - Width();
    if (auto *groupes = qobject_cast<Groupes *>(formulaires().forme(formes::Groupes));
        groupes != nullptr && groupes->onglets() > 0) {
        formulaires().MontreSansFocus(formes::Groupes);
        groupes->Form_Activate();
        gauche -= groupes->Width();
    }
    const QRect zone = formulaires().zoneLibre();
    Move(gaucheLibre(saisie, gauche), enTwips(zone.top()), Width(), enTwips(zone.height()));
}

void manqres::quitteEcran()
{
    formulaires().Cache(formes::Groupes);
    formulaires().Cache(formes::DetailResultats);
}

void manqres::classement_Click()
{
    montreAttendus(grille(0).isHidden());
}

/// The button tells where it leads: pink to the ranking, green back to the pending matches.
void manqres::montreAttendus(bool attendus)
{
    if (!attendus)
        grille(1).move(grille(0).x(), grille(1).y());
    grille(0).setVisible(attendus);
    grille(1).setVisible(!attendus);
    setWindowTitle(attendus ? u"Résultats attendus"_qs : u"Classement victoires G.a."_qs);
    QPushButton &bouton = *m_ui->classement;
    bouton.setText(attendus ? u"Classement"_qs : u"Attendus"_qs);
    bouton.setProperty("bascule", attendus ? u"rose"_qs : u"vert"_qs);
    bouton.style()->unpolish(&bouton);
    bouton.style()->polish(&bouton);
}

void manqres::les_resultats_MouseDown(int Index, int Button, int ligne, int colonne)
{
    if (ligne < 1)
        return;
    if (Button == Bouton::Droit)
        basculeLancee(Index, ligne);
    if (Button == Bouton::Gauche && etatResultats(formulaires()).ClicGrille && Index == 0
        && (colonne == 1 || colonne == 2))
        montreDetail(grille(0).TextMatrix(ligne, colonne));
}

/// The bracket follows the grid: the ranking stands for bracket 2, which has no match, so that a press there changes
/// nothing.
void manqres::basculeLancee(int Index, int ligne)
{
    FlexGrid &pressee = grille(Index);
    if (donnees::BasculeLancee(partage().BaseDonnees, partage().ConcoursCourant, Index + 1,
                               pressee.TextMatrix(ligne, 1), pressee.TextMatrix(ligne, 2)))
        marqueLancee(pressee, ligne, pressee.CellBackColor(ligne, 1) == grille::rouge);
}

/// Bold too, for whoever does not see the red: the match is still to be called.
void manqres::marqueLancee(FlexGrid &grille, int ligne, bool lancee)
{
    for (const int colonne : {1, 2}) {
        grille.setCellBackColor(ligne, colonne, lancee ? grille::blanc : grille::rouge);
        grille.setCellFontBold(ligne, colonne, !lancee);
    }
}

void manqres::montreDetail(const QString &equipe)
{
    auto *detail = qobject_cast<DetailResultats *>(formulaires().Charge(formes::DetailResultats));
    if (detail == nullptr)
        return;
    detail->affiche(store::Valeur(equipe).entier());
    formulaires().MontreSansFocus(formes::DetailResultats);
}
