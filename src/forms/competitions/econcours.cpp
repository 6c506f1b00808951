#include "competitions/econcours.h"

#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "partage/routines.h"
#include "ui_econcours.h"

using store::EstNumerique;
using store::LireDate;

namespace {

/// Types and categories are read in this language, whatever the operator chose.
constexpr int langueDesTypes = 1;
/// Stands in the type read last: no competition has been read, or the entry has been abandoned.
const QString rienDeLu = u"RAB"_qs;

void vide(QComboBox *combo)
{
    combo->setCurrentIndex(-1);
    combo->clearEditText();
}

/// Refills a list and leaves the text that stands in the combo.
void remplit(QComboBox *combo, const QStringList &lignes)
{
    const QString texte = combo->currentText();
    combo->clear();
    combo->addItems(lignes);
    vide(combo);
    combo->setEditText(texte);
}

} // namespace

Econcours::Econcours(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::Econcours>())
{
    m_ui->setupUi(this);
    prepareControles();
    relie();
}

Econcours::~Econcours() = default;

std::vector<Infobulle> Econcours::infobulles() const
{
    return {{m_ui->référence, mes(135)},
            {m_ui->Text2, mes(139)},
            {m_ui->Check1, mes(166)},
            {m_ui->Lrepech, mes(166)},
            {m_ui->Dupliquer, mes(134)}};
}

void Econcours::relie()
{
    const auto touche = [this](QWidget *controle, void (Econcours::*traitement)(int, int)) {
        surKeyDown(controle, [this, traitement](int code, int maj) { (this->*traitement)(code, maj); });
    };
    touche(m_ui->référence, &Econcours::référence_KeyDown);
    touche(m_ui->Text2, &Econcours::Text2_KeyDown);
    touche(m_ui->Text3, &Econcours::Text3_KeyDown);
    touche(m_ui->Text4, &Econcours::Text4_KeyDown);
    touche(m_ui->Combo1, &Econcours::Combo1_KeyDown);
    surGotFocus(m_ui->référence, [this] { référence_GotFocus(); });
    surLostFocus(m_ui->référence, [this] { référence_LostFocus(); });
    surLostFocus(m_ui->Combo1, [this] { Combo1_LostFocus(); });
    surChoix(m_ui->référence, [this] { référence_KeyDown(Touche::Entree, 0); });
    surMouseDown(m_ui->Lrepech, [this](int, int) { m_ui->Check1->toggle(); });
    surClick(m_ui->ok, [this] { ok_Click(); });
    surClick(m_ui->Command1, [this] { Command1_Click(); });
    surClick(m_ui->Dupliquer, [this] { Dupliquer_Click(); });
    surClick(m_ui->Supprimer, [this] { Supprimer_Click(); });
}

void Econcours::Form_Load()
{
    LegendesEconcours();
}

void Econcours::LegendesEconcours()
{
    FenetreDessus(*this, false);
    setWindowTitle(mes(6));
    m_ui->Label1->setText(mes(7));
    m_ui->Label2->setText(mes(8));
    m_ui->Label3->setText(mes(9));
    m_ui->Label4->setText(mes(1));
    m_ui->Label5->setText(mes(10));
    m_ui->Label6->setText(mes(127));
    m_ui->Supprimer->setToolTip(mes(12));
    m_ui->Command1->setToolTip(mes(11));
    m_ui->ok->setToolTip(mes(13));
}

void Econcours::Form_Activate()
{
    remplitTypes();
    remplitCategories();
    majrefconcours();
    SetFocus(m_ui->Text2);
    m_ancienType = rienDeLu;
}

void Econcours::remplitTypes()
{
    QStringList types;
    for (const donnees::TypeConcours &type : donnees::ListeTypes(partage().BaseDonnees, langueDesTypes))
        types += type.texte();
    remplit(m_ui->Combo1, types);
}

void Econcours::remplitCategories()
{
    remplit(m_ui->text1, donnees::ListeCategories(partage().BaseDonnees, langueDesTypes));
}

void Econcours::majrefconcours()
{
    const std::vector<donnees::Concours> liste = donnees::ListeConcours(partage().BaseDonnees);
    if (liste.empty()) {
        m_ui->Label4->hide();
        m_ui->référence->hide();
        return;
    }
    m_ui->référence->clear();
    for (const donnees::Concours &concours : liste)
        m_ui->référence->addItem(ZeroPad(concours.numero, largeurReference));
    const QString proposition = ZeroPad(liste.back().numero + 1, largeurReference);
    poseTexte(m_ui->référence, proposition);
    m_refConcours = proposition.toInt();
}

void Econcours::référence_GotFocus()
{
    videSaisie();
}

void Econcours::référence_KeyDown(int KeyCode, int)
{
    const bool numerique = EstNumerique(m_ui->référence->currentText());
    if (KeyCode == Touche::Entree && !numerique)
        poseTexte(m_ui->référence, ZeroPad(m_refConcours, largeurReference));
    if (KeyCode == Touche::Entree || (KeyCode == Touche::Droite && numerique))
        litConcours();
}

void Econcours::référence_LostFocus()
{
    référence_KeyDown(Touche::Entree, 0);
}

void Econcours::litConcours()
{
    const qint64 numero = store::Valeur(m_ui->référence->currentText()).entier();
    const std::optional<donnees::Concours> concours = donnees::TrouveConcours(partage().BaseDonnees, numero);
    if (!concours) {
        videSaisie();
        m_ui->Check1->setChecked(false);
        poseTexte(m_ui->référence, ZeroPad(m_refConcours, largeurReference));
    } else {
        poseTexte(m_ui->référence, ZeroPad(numero, largeurReference));
        m_ancienType = concours->type;
        m_ui->Combo1->setEditText(m_ancienType);
        m_ui->Text2->setText(FormateDate(partage(), concours->date));
        m_ui->Text3->setText(concours->lieu);
        m_ui->Text4->setText(concours->organisateur);
        m_ui->Check1->setChecked(concours->repechage);
        m_ui->text1->setEditText(concours->categorie);
        m_ui->Check4->setChecked(true);
        m_lu = numero;
    }
    SetFocus(m_ui->Text2);
}

void Econcours::videSaisie()
{
    vide(m_ui->text1);
    videFicheConcours();
}

/// What Escape empties.
void Econcours::videFicheConcours()
{
    m_ui->Text2->clear();
    m_ui->Text3->clear();
    m_ui->Text4->clear();
    vide(m_ui->Combo1);
    m_lu = 0;
}

void Econcours::Text2_KeyDown(int KeyCode, int)
{
    const int annee = partage().horloge.jour().year();
    if (KeyCode == Touche::Entree || (KeyCode == Touche::Droite && LireDate(m_ui->Text2->text(), annee).isValid()))
        SetFocus(m_ui->Text3);
}

void Econcours::Text3_KeyDown(int KeyCode, int)
{
    if (Touche::Avance(KeyCode))
        SetFocus(m_ui->Text4);
}

void Econcours::Text4_KeyDown(int KeyCode, int)
{
    if (Touche::Avance(KeyCode))
        SetFocus(m_ui->Combo1);
}

/// Enter leaves for the top of the entry; the check of the type runs on the way out, and may call the focus back.
void Econcours::Combo1_KeyDown(int KeyCode, int)
{
    if (Touche::Avance(KeyCode)) {
        SetFocus(m_ui->Text2);
    } else if (KeyCode == Touche::Echap) {
        m_ancienType = rienDeLu;
        videFicheConcours();
        SetFocus(m_ui->Text2);
    }
}

QString Econcours::codeType() const
{
    const QString type = m_ui->Combo1->currentText();
    return type.left(std::max<qsizetype>(type.indexOf(u" - "_qs), 0));
}

void Econcours::refuseType()
{
    vide(m_ui->Combo1);
    MsgBox(mes(52));
    SetFocus(m_ui->Combo1);
}

void Econcours::Combo1_LostFocus()
{
    const qint64 numero = store::Valeur(m_ui->référence->currentText()).entier();
    const qint64 equipes = CompteEquipesStade(partage(), numero, 1, 1);
    const QString type = m_ui->Combo1->currentText();
    const bool abandonnee = m_ancienType == rienDeLu && type.isEmpty();
    if (equipes > 0 && type != m_ancienType && !abandonnee) {
        MsgBox(mes(116) + u" : "_qs + mes(87));
        SetFocus(m_ui->Combo1);
        return;
    }
    const QString code = codeType();
    if (code.isEmpty()) {
        // A form just opened, or abandoned, can be left with an empty type once.
        if (m_ancienType == rienDeLu)
            m_ancienType.clear();
        else
            refuseType();
        return;
    }
    if (const auto connu = donnees::TrouveType(partage().BaseDonnees, code))
        m_ui->Combo1->setEditText(connu->texte());
    else
        refuseType();
}

void Econcours::ok_Click()
{
    const QDate aujourdhui = partage().horloge.jour();
    const QDate date = LireDate(m_ui->Text2->text(), aujourdhui.year());
    if (!date.isValid())
        return;
    if (date < aujourdhui) {
        MsgBox(mes(53));
        SetFocus(m_ui->Text2);
        return;
    }
    const QString code = codeType();
    if (code.isEmpty() || !donnees::TrouveType(partage().BaseDonnees, code)) {
        majrefconcours();
        refuseType();
        return;
    }
    const std::optional<donnees::Concours> connu =
        donnees::TrouveConcours(partage().BaseDonnees, m_ui->référence->currentText());
    if (connu && !confirmeRemplacement(connu->numero))
        return;
    m_ui->Check4->setChecked(true);
    donnees::Concours concours = concoursSaisi();
    if (connu) {
        concours.numero = connu->numero;
        modifieConcours(concours);
    } else {
        ajouteConcours(concours);
    }
}

/// The number shown may be that of a competition whose fields nobody has seen: the list falls back to the one created
/// last. What is typed beside it is meant for a new one.
bool Econcours::confirmeRemplacement(qint64 numero)
{
    if (numero == m_lu)
        return true;
    const QString question = u"Le concours %1 existe déjà et n'a pas été relu.\n"
                             "Faut-il le remplacer par ce qui est affiché ?"_qs.arg(m_ui->référence->currentText());
    if (MsgBox(question, vbYesNo | vbExclamation | vbDefaultButton2) == ReponseBoite::Oui)
        return true;
    SetFocus(m_ui->Text2);
    return false;
}

void Econcours::ajouteConcours(const donnees::Concours &concours)
{
    donnees::AjouteConcours(partage().BaseDonnees, concours, [this](qint32 numero) { annonceConcours(numero); });
    videApresEnregistrement();
}

/// Shows the number of a competition that is about to be stored, which is the current one from now on. Date, place and
/// category in Partage stay those of the one before until a form loads it.
void Econcours::annonceConcours(qint32 numero)
{
    partage().ConcoursCourant = numero;
    m_refConcours = numero;
    m_ui->référence->addItem(ZeroPad(numero, largeurReference));
    poseTexte(m_ui->référence, ZeroPad(numero + 1, largeurReference));
    if (m_ui->référence->isHidden()) {
        MsgBox(mes(95) + ZeroPad(numero, largeurReference));
        m_ui->Label4->show();
        m_ui->référence->show();
    }
}

void Econcours::modifieConcours(const donnees::Concours &concours)
{
    partage().ConcoursCourant = concours.numero;
    donnees::CorrigeConcours(partage().BaseDonnees, concours);
    videApresEnregistrement();
    poseTexte(m_ui->référence, ZeroPad(m_refConcours, largeurReference));
}

donnees::Concours Econcours::concoursSaisi() const
{
    return {.date = LireDate(m_ui->Text2->text(), partage().horloge.jour().year()),
            .lieu = m_ui->Text3->text(),
            .organisateur = m_ui->Text4->text(),
            .type = m_ui->Combo1->currentText(),
            .categorie = m_ui->text1->currentText(),
            .repechage = m_ui->Check1->isChecked()};
}

void Econcours::videApresEnregistrement()
{
    videSaisie();
    m_ui->Check1->setChecked(false);
    m_ui->Check4->setChecked(false);
}

void Econcours::Command1_Click()
{
    const NomForme nom = formes::Listco;
    // A list left open may lack the competitions entered since.
    if (Formulaire *liste = formulaires().forme(nom))
        liste->Form_Load();
    formulaires().Montre(nom);
}
