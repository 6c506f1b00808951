#include "clock/frmhorloge.h"

#include "clock/acces_horloge.h"
#include "fenetres/formulaires.h"
#include "noms/formes.h"
#include "noms/mesures_horloge.h"
#include "partage/routines.h"
#include "son/son.h"
#include "ui_frmhorloge.h"

#include <QStyle>
#include <QTimer>

namespace {

const QString titre = u"Boite à outils "_qs;
const QString formatHeure = u"HH:mm:ss"_qs;
const QString sansHeure = u"--"_qs;
const QString separateur = u": "_qs;
const QString fichierSon = u"/drelin.WAV"_qs;

constexpr int seconde = 1000;
constexpr int apresLaSeconde = 5;
constexpr int chronoEnMarche = 6;
constexpr QPoint ecartQuestion(3000, 2000); // twips

} // namespace

FrmHorloge::FrmHorloge(const Contexte &contexte, QWidget *parent)
    : Formulaire(contexte, parent)
    , m_ui(std::make_unique<Ui::FrmHorloge>())
    , m_son(std::make_unique<SonQt>())
    , m_timer1(creeTimer(u"Timer1"_qs, &FrmHorloge::Timer1_Timer))
    , m_timer2(creeTimer(u"Timer2"_qs, &FrmHorloge::Timer2_Timer))
    , m_timer14(creeTimer(u"Timer14"_qs, &FrmHorloge::Timer14_Timer))
    , m_chronometre(contexte.partage.horloge)
    , m_alarme(m_heureAlarme)
    , m_loterie(m_tirages, contexte.partage.RestantTirages)
{
    RendLisibleHorloge();
    m_ui->setupUi(this);
    resize(minimumSizeHint());
    m_ui->Maxvaleur->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]*"_qs), this));
    m_colonnes = {{{m_ui->IMAGES_0, creeTimer(u"Timer11"_qs, &FrmHorloge::Timer11_Timer)},
                   {m_ui->IMAGES_1, creeTimer(u"Timer12"_qs, &FrmHorloge::Timer12_Timer)},
                   {m_ui->IMAGES_2, creeTimer(u"Timer13"_qs, &FrmHorloge::Timer13_Timer)}}};
    prepareControles();
    relieBoutons();
}

FrmHorloge::~FrmHorloge() = default;

std::vector<Infobulle> FrmHorloge::infobulles() const
{
    return {{m_ui->start, mes(158)},    {m_ui->stop, mes(159)},      {m_ui->effacer, mes(160)},
            {m_ui->Command1, mes(161)}, {m_ui->Maxvaleur, mes(162)}, {m_ui->lancer, mes(163)},
            {m_ui->RAZ, mes(164)}};
}

QTimer *FrmHorloge::creeTimer(const QString &nom, void (FrmHorloge::*traitement)())
{
    auto *timer = new QTimer(this);
    timer->setObjectName(nom);
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer, &QTimer::timeout, this, [this, traitement] { execute([&] { (this->*traitement)(); }); });
    return timer;
}

void FrmHorloge::relieBoutons()
{
    surClick(m_ui->start, [this] { start_Click(); });
    surClick(m_ui->stop, [this] { stop_Click(); });
    surClick(m_ui->effacer, [this] { effacer_Click(); });
    surClick(m_ui->Command1, [this] { Command1_Click(); });
    surClick(m_ui->lancer, [this] { lancer_Click(); });
    surClick(m_ui->RAZ, [this] { RAZ_Click(); });
    connect(m_ui->Maxvaleur, &QLineEdit::textChanged, this, [this] { execute([this] { Maxvaleur_Change(); }); });
}

void FrmHorloge::prendSon(std::unique_ptr<Son> son)
{
    m_son = std::move(son);
}

void FrmHorloge::Form_Load()
{
    // The figures follow each other on every band, and the 0 stands in the middle of the window.
    for (Colonne &colonne : m_colonnes)
        for (size_t ligne = 0; ligne < colonne.figures.size(); ++ligne)
            colonne.figures[ligne] = quint8((ligne + 10 - Rouleau::ligneMontree) % 10);
    Afficher();
    m_loterie.remplit(m_ui->Maxvaleur->text().toShort());
    m_timer1->setSingleShot(true);
    Timer1_Timer();
    ditMesures();
}

void FrmHorloge::Form_Unload()
{
    mesuresHorloge(formulaires()) = {};
}

void FrmHorloge::ditMesures()
{
    mesuresHorloge(formulaires()).chronometre = [this]() -> std::optional<qint64> {
        if (!m_chronometre.tourne())
            return std::nullopt;
        const Chronometre::Champs champs = m_chronometre.champs();
        return (champs.heures * 60 + champs.minutes) * 60 + champs.secondes;
    };
    mesuresHorloge(formulaires()).alarme = [this]() -> std::optional<qint64> {
        if (!m_alarme.estMise())
            return std::nullopt;
        const QDateTime maintenant(partage().horloge.jour(), partage().horloge.heure());
        return std::max<qint64>(maintenant.secsTo(m_heureAlarme), 0);
    };
}

void FrmHorloge::showEvent(QShowEvent *evenement)
{
    if (m_marche == chronoEnMarche)
        m_timer2->start();
    Formulaire::showEvent(evenement);
}

/// Nobody reads the hundredths of a hidden stopwatch: its time goes on without ticks.
void FrmHorloge::hideEvent(QHideEvent *evenement)
{
    m_timer2->stop();
    Formulaire::hideEvent(evenement);
}

// Clock

/// The alarm goes by the time that stands there, before the next one takes its place.
void FrmHorloge::Timer1_Timer()
{
    if (m_alarme.sonne(QDateTime(m_jourAffiche, QTime::fromString(m_ui->Heure->text(), formatHeure))))
        sonne();
    montreHeure();
    // Waiting for the next full second, and not for a second, keeps the display from skipping one.
    m_timer1->start(seconde - partage().horloge.heure().msec() + apresLaSeconde);
}

void FrmHorloge::montreHeure()
{
    m_jourAffiche = partage().horloge.jour(); // before the time: between the two, midnight can go by
    const QTime heure = partage().horloge.heure();
    const QString texte = heure.toString(formatHeure);
    m_ui->Heure->setText(texte);
    setWindowTitle(titre + texte);
    m_ui->Picture1->montre(heure);
}

// Stopwatch

void FrmHorloge::start_Click()
{
    m_chronometre.demarre();
    m_marche = chronoEnMarche;
    m_ui->start->setEnabled(false);
    m_timer2->start(1);
}

void FrmHorloge::stop_Click()
{
    m_chronometre.arrete();
    m_marche = 0;
    m_timer2->stop();
    montreChronometre();
    m_ui->start->setEnabled(true);
    // The same key starts and stops.
    if (m_ui->stop->hasFocus())
        m_ui->start->setFocus();
}

void FrmHorloge::effacer_Click()
{
    m_chronometre.efface();
    montreChronometre();
}

void FrmHorloge::Timer2_Timer()
{
    montreChronometre();
}

void FrmHorloge::montreChronometre()
{
    const Chronometre::Champs champs = m_chronometre.champs();
    if (champs == m_montre)
        return;
    m_montre = champs;
    m_ui->heures->setText(ZeroPad(champs.heures, 2));
    m_ui->minutes->setText(ZeroPad(champs.minutes, 2));
    m_ui->secondes->setText(ZeroPad(champs.secondes, 2));
    m_ui->centiemes->setText(ZeroPad(champs.centiemes, 2));
}

// Alarm

void FrmHorloge::Command1_Click()
{
    if (m_alarme.estMise()) {
        m_alarme.efface();
        montreAlarme({}, {}, {});
        FenetreDessus(*this, false);
        return;
    }
    const QPoint coin = QPoint(Left(), Top()) + ecartQuestion;
    const QString minutes = boites().InputBox(u"Combien de minutes?"_qs, u"Alarme"_qs, coin).value_or(QString());
    const Horloge &horloge = partage().horloge;
    const QTime heure = horloge.heure();
    const QDateTime maintenant(horloge.jour(), QTime(heure.hour(), heure.minute(), heure.second()));
    if (minutes.isEmpty())
        montreAlarme({}, {}, {});
    else if (m_alarme.regle(minutes, maintenant))
        montreAlarme(m_alarme.heure().toString(u"HH"_qs), separateur + m_alarme.heure().toString(u"mm"_qs),
                     separateur + m_alarme.heure().toString(u"ss"_qs));
    else
        montreAlarme(sansHeure, separateur + sansHeure, separateur + sansHeure);
}

void FrmHorloge::montreAlarme(const QString &heures, const QString &minutes, const QString &secondes)
{
    m_ui->AlarmeHeures->setText(heures);
    m_ui->AlarmeMinutes->setText(minutes);
    m_ui->AlarmeSecondes->setText(secondes);
    m_ui->Command1->setText(m_alarme.estMise() ? u"&Arrêter l'alarme"_qs : u"&Alarme"_qs);
    inverseAlarme(false);
}

void FrmHorloge::inverseAlarme(bool inverse)
{
    m_inverse = inverse;
    m_ui->PanneauAlarme->setProperty("alarme", inverse ? u"rouge"_qs : u"blanc"_qs);
    QWidget *const colores[] = {m_ui->PanneauAlarme, m_ui->AlarmeHeures, m_ui->AlarmeMinutes, m_ui->AlarmeSecondes};
    for (QWidget *colore : colores) {
        colore->style()->unpolish(colore);
        colore->style()->polish(colore);
    }
}

void FrmHorloge::sonne()
{
    m_son->PlaySound(partage().DossierProgramme + fichierSon);
    inverseAlarme(!m_inverse);
    if (!isVisible())
        formulaires().MontreSansFocus(formes::FrmHorloge);
    FenetreDessus(*this, true);
    raise();
}
