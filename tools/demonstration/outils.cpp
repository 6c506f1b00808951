#include "outils.h"

#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTimer>

namespace demonstration {

namespace {

const QString outils = u"FrmHorloge"_qs;
constexpr int patienceMs = 5000;
constexpr int elanMs = 150;
constexpr int hateMs = 10;
constexpr int rouleauxMs = 480;
constexpr int nombreNumeros = 4;
constexpr int minutesAlarme = 15;

} // namespace

void Outils::essaie()
{
    m_main.clique(m_main.controle(u"Torvik"_qs, u"chrono"_qs));
    m_horloge.passe(8 * 60 + 37);
    m_main.clique(m_main.controle(outils, u"start"_qs));
    tireNumeros();
    metAlarme();
    m_main.clique(m_main.controle(outils, u"stop"_qs));
    attendSonnerie();
    m_photographe.prend(u"outils", *m_main.fenetre(outils));
    m_main.clique(m_main.controle(u"Torvik"_qs, u"chrono"_qs));
}

void Outils::tireNumeros()
{
    auto *lancer = m_main.controle(outils, u"lancer"_qs);
    const auto *sortis = m_main.controle<QListWidget>(outils, u"resutir"_qs);
    for (int rang = 1; rang <= nombreNumeros; ++rang) {
        m_main.clique(lancer);
        QTest::qWait(elanMs);
        m_photographe.prend(u"outils-tirage", *m_main.fenetre(outils));
        m_main.controle<QTimer>(outils, u"Timer14"_qs)->setInterval(hateMs);
        exige(QTest::qWaitFor([&] { return sortis->count() == rang && lancer->isEnabled(); }, patienceMs),
              u"La loterie ne rend pas son numéro %1."_qs.arg(rang));
    }
    QTest::qWait(rouleauxMs);
}

void Outils::metAlarme()
{
    m_boites.saisit(u"Combien de minutes?"_qs, QString::number(minutesAlarme), u"boite-alarme");
    m_main.clique(m_main.controle(outils, u"Command1"_qs));
}

/// The time that the clock of the day shows reaches the alarm, and the next tick rings.
void Outils::attendSonnerie()
{
    m_horloge.passe(minutesAlarme * 60);
    const auto *panneau = m_main.controle(outils, u"PanneauAlarme"_qs);
    exige(QTest::qWaitFor([&] { return panneau->property("alarme") == u"rouge"_qs; }, patienceMs),
          u"L'alarme ne sonne pas."_qs);
}

} // namespace demonstration
