#pragma once

#include "clock/alarme.h"
#include "clock/chronometre.h"
#include "clock/loterie.h"
#include "clock/rouleau.h"
#include "fenetres/formulaire.h"

#include <array>
#include <memory>

class QTimer;
class Son;

namespace Ui {
class FrmHorloge;
}

/// The organiser's toolbox: clock, stopwatch, alarm and lottery, side by side. It keeps running while it is open,
/// hidden or not.
class FrmHorloge : public Formulaire
{
    Q_OBJECT

public:
    FrmHorloge(const Contexte &contexte, QWidget *parent);
    ~FrmHorloge() override;

    /// Date and time of the alarm that was set last.
    QDateTime HeureAlarme() const { return m_heureAlarme; }
    /// Numbers of the lottery: those still to be drawn come first.
    const std::vector<qint16> &Tirages() const { return m_tirages; }

    std::vector<Infobulle> infobulles() const override;
    void Form_Load() override;
    void Form_Unload() override;

    /// The clock goes on: the alarm is looked at, then the next time shown.
    void Timer1_Timer();
    /// The next step of a draw of the lottery.
    void Timer14_Timer();

    /// Plays the alarm on \p son instead of the desktop's sound.
    void prendSon(std::unique_ptr<Son> son);

protected:
    void showEvent(QShowEvent *evenement) override;
    void hideEvent(QHideEvent *evenement) override;

private:
    void Timer2_Timer();
    void Command1_Click();
    void Timer11_Timer() { tourne(0); }
    void Timer12_Timer() { tourne(1); }
    void Timer13_Timer() { tourne(2); }
    void start_Click();
    void stop_Click();
    void effacer_Click();
    void Maxvaleur_Change();
    void RAZ_Click();
    void lancer_Click();

    /// One reel: its picture, what turns it, and its column of figures.
    struct Colonne
    {
        Rouleau *image = nullptr;
        QTimer *timer = nullptr;
        Rouleau::Figures figures{};
        int decalees = 0; ///< Rows that the figures have moved since they were last shown.
    };

    QTimer *creeTimer(const QString &nom, void (FrmHorloge::*traitement)());
    void relieBoutons();
    void ditMesures();

    void montreHeure();
    void montreChronometre();

    void sonne();
    void montreAlarme(const QString &heures, const QString &minutes, const QString &secondes);
    void inverseAlarme(bool inverse);

    void recommence(qint16 limite);
    void permetLancer(bool permis);
    void Decale(int colonne);
    void Afficher();
    void tourne(int colonne);
    void arreteSur(int colonne, int chiffre);
    void finitTirage();

    std::unique_ptr<Ui::FrmHorloge> m_ui;
    std::unique_ptr<Son> m_son;
    QTimer *m_timer1;
    QTimer *m_timer2;
    QTimer *m_timer14;

    Chronometre m_chronometre;
    Chronometre::Champs m_montre;
    int m_marche = 0;
    QDate m_jourAffiche; ///< Day of the time that stands in `Heure`.

    QDateTime m_heureAlarme;
    Alarme m_alarme;
    bool m_inverse = false;

    std::vector<qint16> m_tirages;
    Loterie m_loterie;
    std::array<Colonne, 3> m_colonnes;
    int m_etapeLancer = 0;
    bool m_rendFocus = false; ///< The button that the draw has disabled had the focus.
};
