#include "competitions/econcours.h"

#include "app/concours_courant.h"
#include "app/routines.h"
#include "platform/formulaires.h"
#include "ui_econcours.h"

using store::EstNumerique;
using store::LireDate;
using store::Recordset;

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
    Recordset lignes = partage().BaseDonnees.OpenRecordset(u"select * from typconcours where lang = "_qs
                                                           + QString::number(langueDesTypes));
    for (; !lignes.Eof(); lignes.MoveNext())
        types += lignes[u"type"].texte() + u" - "_qs + lignes[u"Libelle"].texte();
    remplit(m_ui->Combo1, types);
}

void Econcours::remplitCategories()
{
    QStringList categories;
    Recordset lignes = partage().BaseDonnees.OpenRecordset(
        u"select * from catégories where lang = "_qs + QString::number(langueDesTypes) + u" order by libelle"_qs);
    for (; !lignes.Eof(); lignes.MoveNext())
        categories += lignes[u"Libelle"].texte();
    remplit(m_ui->text1, categories);
}

void Econcours::majrefconcours()
{
    Recordset concours = partage().BaseDonnees.OpenRecordset(u"SELECT * FROM [Concours] order by [concours]");
    if (concours.Eof()) {
        m_ui->Label4->hide();
        m_ui->référence->hide();
        return;
    }
    QString proposition;
    m_ui->référence->clear();
    for (; !concours.Eof(); concours.MoveNext()) {
        m_ui->référence->addItem(ZeroPad(concours[u"Concours"].entier(), largeurReference));
        proposition = ZeroPad(concours[u"Concours"].entier() + 1, largeurReference);
    }
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
    const Recordset concours = partage().BaseDonnees.OpenRecordset(u"SELECT * FROM [Concours] Where [concours] = "_qs
                                                                   + QString::number(numero));
    if (concours.Eof()) {
        videSaisie();
        m_ui->Check1->setChecked(false);
        poseTexte(m_ui->référence, ZeroPad(m_refConcours, largeurReference));
    } else {
        poseTexte(m_ui->référence, ZeroPad(numero, largeurReference));
        m_ancienType = concours[u"type"].texte();
        m_ui->Combo1->setEditText(m_ancienType);
        m_ui->Text2->setText(FormateDate(partage(), concours[u"date"]));
        m_ui->Text3->setText(concours[u"Lieu"].texte());
        m_ui->Text4->setText(concours[u"Organisateur"].texte());
        m_ui->Check1->setChecked(concours[u"repeche"].booleen());
        m_ui->text1->setEditText(concours[u"categorie"].texte());
        m_ui->Check4->setChecked(true);
    }
    SetFocus(m_ui->Text2);
}

void Econcours::videSaisie()
{
    vide(m_ui->text1);
    m_ui->Text2->clear();
    m_ui->Text3->clear();
    m_ui->Text4->clear();
    vide(m_ui->Combo1);
}

void Econcours::Text2_KeyDown(int KeyCode, int)
{
    const int annee = partage().horloge.jour().year();
    if (KeyCode == Touche::Entree
        || (KeyCode == Touche::Droite && LireDate(m_ui->Text2->text(), annee).isValid()))
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
        m_ui->Text2->clear();
        m_ui->Text3->clear();
        m_ui->Text4->clear();
        vide(m_ui->Combo1);
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
    if (equipes > 0 && m_ui->Combo1->currentText() != m_ancienType) {
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
    Recordset types = partage().BaseDonnees.OpenRecordset(u"typconcours", store::dbOpenTable);
    types.Index(u"Primarykey");
    types.Seek(u"=", {code});
    if (types.NoMatch())
        refuseType();
    else
        m_ui->Combo1->setEditText(types[u"type"].texte() + u" - "_qs + types[u"Libelle"].texte());
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
    Recordset types = partage().BaseDonnees.OpenRecordset(u"typconcours", store::dbOpenTable);
    types.Index(u"Primarykey");
    types.Seek(u"=", {code});
    if (code.isEmpty() || types.NoMatch()) {
        majrefconcours();
        refuseType();
        return;
    }
    m_ui->Check4->setChecked(true);
    Recordset concours = partage().BaseDonnees.OpenRecordset(u"Concours", store::dbOpenTable);
    concours.Index(u"PrimaryKey");
    concours.Seek(u"=", {m_ui->référence->currentText()});
    if (concours.NoMatch())
        ajouteConcours(concours);
    else
        modifieConcours(concours);
}

void Econcours::ajouteConcours(Recordset &concours)
{
    concours.AddNew();
    ecritChampsCommuns(concours);
    for (const QStringView compteur : {u"tourpri", u"nbtours_a", u"nbtours_b", u"nbtours_c"})
        concours[compteur] = 0;
    partage().ConcoursCourant = qint32(concours[u"concours"].entier());
    const QString numero = ZeroPad(partage().ConcoursCourant, largeurReference);
    // The row is not stored yet, so what is kept of the current competition stays that of the one before.
    ChargeConcours(partage(), partage().ConcoursCourant);
    m_refConcours = partage().ConcoursCourant;
    m_ui->référence->addItem(numero);
    poseTexte(m_ui->référence, ZeroPad(partage().ConcoursCourant + 1, largeurReference));
    if (m_ui->référence->isHidden()) {
        MsgBox(mes(95) + numero);
        m_ui->Label4->show();
        m_ui->référence->show();
    }
    enregistreEtVide(concours);
}

void Econcours::modifieConcours(Recordset &concours)
{
    partage().ConcoursCourant = qint32(concours[u"Concours"].entier());
    concours.Edit();
    ecritChampsCommuns(concours);
    enregistreEtVide(concours);
    poseTexte(m_ui->référence, ZeroPad(m_refConcours, largeurReference));
}

void Econcours::ecritChampsCommuns(Recordset &concours) const
{
    concours[u"date"] = LireDate(m_ui->Text2->text(), partage().horloge.jour().year());
    concours[u"lieu"] = m_ui->Text3->text();
    concours[u"organisateur"] = m_ui->Text4->text();
    concours[u"type"] = m_ui->Combo1->currentText();
    concours[u"categorie"] = m_ui->text1->currentText();
    concours[u"pro"] = true;
    concours[u"repeche"] = m_ui->Check1->isChecked();
}

void Econcours::enregistreEtVide(Recordset &concours)
{
    concours.Update();
    videSaisie();
    m_ui->Check1->setChecked(false);
    m_ui->Check4->setChecked(false);
}

void Econcours::Command1_Click()
{
    const QString nom = u"Listco"_qs;
    // A list left open may lack the competitions entered since.
    if (Formulaire *liste = formulaires().forme(nom))
        liste->Form_Load();
    formulaires().Montre(nom);
}
