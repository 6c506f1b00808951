#include "printing/i_tirage.h"

#include "engine/routines_tirage.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "partage/routines.h"
#include "printing/imprime_tirage.h"
#include "ui_i_tirage.h"

namespace {

constexpr int largeurNumero = 6;
const QString tous = u"*"_qs;

/// The digits that \p texte begins with, as a number; 0 without any.
int valeur(const QString &texte)
{
    constexpr int borne = 100000;
    int nombre = 0;
    for (const QChar signe : texte.trimmed()) {
        if (signe < u'0' || signe > u'9')
            break;
        nombre = std::min(nombre * 10 + signe.unicode() - u'0', borne);
    }
    return nombre;
}

} // namespace

I_tirage::I_tirage(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::I_tirage>())
{
    m_ui->setupUi(this);
    prepareControles();
    surClick(m_ui->Option1, [this] { Option1_Click(); });
    surClick(m_ui->Option3, [this] { Option3_Click(); });
    surClick(m_ui->Imprime, [this] { Imprime_Click(); });
    surClick(m_ui->sortie, [this] { sortie_Click(); });
    QWidget *const controles[] = {m_ui->Option1, m_ui->Option3, m_ui->Tour, m_ui->D_tail, m_ui->Imprime, m_ui->sortie};
    for (QWidget *controle : controles)
        surKeyDown(controle, [this, controle](int KeyCode, int) { toucheDuDialogue(*controle, KeyCode); });
    surMouseDown(m_ui->Label3, [this](int, int) { Label3_Click(); });
    surMouseDown(m_ui->Label2, [this](int, int) { m_ui->D_tail->toggle(); });
}

I_tirage::~I_tirage() = default;

std::vector<Infobulle> I_tirage::infobulles() const
{
    return {{m_ui->Tour, mes(155)}, {m_ui->D_tail, mes(156)}, {m_ui->Label2, mes(156)}, {m_ui->Imprime, mes(157)}};
}

void I_tirage::Form_Load()
{
    FenetreDessus(*this, false);
}

void I_tirage::Form_Activate()
{
    effaceChoix();
    m_ui->Tour->setText(QString::number(partage().TourCourant));
}

/// The results screen that opened the dialog takes the keyboard back.
void I_tirage::Form_Unload()
{
    const Formulaire *resultats = formulaires().forme(formes::EResultats);
    if (resultats != nullptr && resultats->isVisible())
        formulaires().Montre(formes::EResultats);
}

/// No sheet is chosen: the operator must pick one first.
void I_tirage::effaceChoix()
{
    for (QRadioButton *option : {m_ui->Option1, m_ui->Option3}) {
        // Options of a group do not let themselves be cleared all.
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
    QWidget *const controles[] = {m_ui->Imprime, m_ui->D_tail, m_ui->Label2, m_ui->Tour, m_ui->Label1, m_ui->Label3};
    for (QWidget *controle : controles)
        controle->hide();
}

void I_tirage::Option1_Click()
{
    effaceChoix();
    if (partage().TourCourant < 1)
        return;
    m_ui->Option1->setChecked(true);
    QWidget *const controles[] = {m_ui->Imprime, m_ui->Tour, m_ui->D_tail, m_ui->Label2, m_ui->Label1, m_ui->Label3};
    for (QWidget *controle : controles)
        controle->show();
}

void I_tirage::Option3_Click()
{
    effaceChoix();
    if (partage().TourCourant < 1)
        return;
    m_ui->Option3->setChecked(true);
    QWidget *const controles[] = {m_ui->Imprime, m_ui->D_tail, m_ui->Label2, m_ui->Label3};
    for (QWidget *controle : controles)
        controle->show();
}

void I_tirage::Imprime_Click()
{
    if (m_ui->Option1->isChecked())
        imprimeTirages();
    else if (m_ui->Option3->isChecked())
        imprimeClassement();
}

/// Rounds that `Tour` asks for: one, two with a hyphen between them, a star for all or, behind the hyphen, for the
/// last.
std::optional<I_tirage::Intervalle> I_tirage::toursDemandes() const
{
    const QString dernierTire = QString::number(partage().TourCourant);
    const QString texte = m_ui->Tour->text();
    const qsizetype tiret = texte.indexOf(u'-');
    QString premier = texte.left(tiret);
    QString dernier = tiret < 0 ? premier : texte.mid(tiret + 1);
    if (premier == tous) {
        premier = u"1"_qs;
        dernier = dernierTire;
    }
    if (dernier == tous || valeur(dernier) > partage().TourCourant)
        dernier = dernierTire;
    const Intervalle tours{valeur(premier), valeur(dernier)};
    if (tours.premier == 0 || tours.premier > partage().TourCourant || tours.premier > tours.dernier)
        return std::nullopt;
    return tours;
}

/// Enter on a button clicks it without this.
void I_tirage::toucheDuDialogue(const QWidget &controle, int KeyCode)
{
    if (KeyCode == Touche::Echap)
        sortie_Click();
    else if (KeyCode == Touche::Entree && &controle == m_ui->Tour)
        Imprime_Click();
}

void I_tirage::imprimeTirages()
{
    const std::optional<Intervalle> tours = toursDemandes();
    if (!tours) {
        m_ui->Tour->clear();
        return;
    }
    for (int tour = tours->premier; tour <= tours->dernier; ++tour)
        ImprimeTirage(contexte(), ModeTirage::Tirage, m_ui->D_tail->isChecked(), tour, QString());
}

void I_tirage::imprimeClassement()
{
    CalculClassement(partage(), ZeroPad(partage().ConcoursCourant, largeurNumero));
    ImprimeTirage(contexte(), ModeTirage::Classement, m_ui->D_tail->isChecked(), partage().TourCourant,
                  etatDuConcours());
}

/// What the results screen says of the state of the competition.
QString I_tirage::etatDuConcours() const
{
    const Formulaire *resultats = formulaires().forme(formes::EResultats);
    if (resultats == nullptr)
        return {};
    QStringList textes;
    for (const QString &nom : {u"Label2"_qs, u"tour_P1"_qs})
        textes += resultats->controle<QLabel>(nom)->text();
    return textes.join(u' ');
}

void I_tirage::Label3_Click()
{
    formulaires().Decharge(formes::I_tirage);
}

void I_tirage::sortie_Click()
{
    formulaires().Decharge(formes::I_tirage);
}
