#include "clock/frmhorloge.h"

#include "partage/routines.h"
#include "ui_frmhorloge.h"

#include <QTimer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int dureeArret = 420; // ms, from full speed to a standstill
constexpr int largeurNumero = 3;
const QString legendeTirages = u"Tirages"_qs;

int intervalle(SourceAleatoire &alea, double plusCourt, double ecart)
{
    return int(std::llrint(plusCourt + alea.suivant() * ecart));
}

} // namespace

/// A field without a number has no lottery; the operator is about to type one.
void FrmHorloge::Maxvaleur_Change()
{
    const QString texte = m_ui->Maxvaleur->text();
    if (texte.isEmpty()) {
        m_loterie.vide();
        return;
    }
    const int limite = texte.toInt();
    if (limite > Loterie::limiteMax)
        m_ui->Maxvaleur->clear();
    else if (limite == 0)
        m_ui->Maxvaleur->setText(QString::number(Loterie::limiteMin));
    else
        recommence(qint16(limite));
}

void FrmHorloge::RAZ_Click()
{
    if (m_loterie.NbTirages() == 0)
        m_ui->Maxvaleur->setText(QString::number(Loterie::limiteMin));
    recommence(m_loterie.NbTirages());
}

void FrmHorloge::recommence(qint16 limite)
{
    m_loterie.remplit(limite);
    m_ui->resutir->clear();
    m_ui->Label7->setText(legendeTirages);
    Afficher();
}

void FrmHorloge::lancer_Click()
{
    if (m_loterie.epuisee()) {
        MsgBox(u"Tous les coups ont été tirés"_qs);
        return;
    }
    permetLancer(false);
    SourceAleatoire &alea = partage().alea;
    alea.Randomize();
    m_timer14->setInterval(intervalle(alea, 500, 1000));
    for (const Colonne &colonne : m_colonnes)
        colonne.timer->setInterval(intervalle(alea, 20, 30));
    m_etapeLancer = 0;
    m_loterie.tire(alea.suivant());
    m_timer14->start();
    for (const Colonne &colonne : m_colonnes)
        colonne.timer->start();
}

/// The limit is out of reach too: a number that is being drawn belongs to the lottery in which it was drawn. The button
/// gets the focus back that it loses here, unless the operator has given it to another control meanwhile.
void FrmHorloge::permetLancer(bool permis)
{
    if (!permis) {
        m_rendFocus = m_ui->lancer->hasFocus();
        m_ui->lancer->clearFocus();
    }
    m_ui->Maxvaleur->setEnabled(permis);
    m_ui->RAZ->setEnabled(permis);
    m_ui->lancer->setEnabled(permis);
    if (permis && m_rendFocus && focusWidget() == nullptr)
        m_ui->lancer->setFocus();
}

void FrmHorloge::Timer14_Timer()
{
    const int numero = m_loterie.NumeroTire();
    switch (++m_etapeLancer) {
    case 1:
        for (const Colonne &colonne : m_colonnes)
            if (!colonne.timer->isActive())
                colonne.timer->start();
        break;
    case 2:
        arreteSur(0, numero / 100);
        break;
    case 3:
        arreteSur(1, numero / 10 % 10);
        break;
    default:
        arreteSur(2, numero % 10);
        finitTirage();
        break;
    }
}

void FrmHorloge::finitTirage()
{
    m_timer14->stop();
    m_etapeLancer = 0;
    m_ui->resutir->addItem(ZeroPad(m_loterie.NumeroTire(), largeurNumero));
    m_ui->resutir->item(m_ui->resutir->count() - 1)->setTextAlignment(Qt::AlignCenter);
    m_ui->resutir->setCurrentRow(m_ui->resutir->count() - 1);
    permetLancer(true);
    m_ui->Label7->setText(m_loterie.epuisee() ? legendeTirages : QString::number(m_loterie.sortis()));
}

/// Turns a reel by one place.
void FrmHorloge::Decale(int colonne)
{
    Colonne &tournee = m_colonnes[size_t(colonne)];
    std::rotate(tournee.figures.begin(), tournee.figures.begin() + 1, tournee.figures.end());
    ++tournee.decalees;
}

void FrmHorloge::Afficher()
{
    for (Colonne &colonne : m_colonnes) {
        const int lignes = std::exchange(colonne.decalees, 0);
        const bool arret = !colonne.timer->isActive();
        if (lignes == 0)
            colonne.image->montre(colonne.figures);
        else
            colonne.image->glisse(colonne.figures, lignes, arret ? dureeArret : colonne.timer->interval(), arret);
    }
}

void FrmHorloge::tourne(int colonne)
{
    Decale(colonne);
    Afficher();
}

/// The reel turns on to the figure, so that all its figures stay on the band.
void FrmHorloge::arreteSur(int colonne, int chiffre)
{
    Colonne &arretee = m_colonnes[size_t(colonne)];
    arretee.timer->stop();
    while (arretee.figures[Rouleau::ligneMontree] != chiffre)
        Decale(colonne);
    Afficher();
}
