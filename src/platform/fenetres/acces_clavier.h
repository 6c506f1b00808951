#pragma once

#include <QObject>
#include <QTimer>

#include <memory>

class Boites;
class EtiquettesAlt;
class QKeyEvent;
class QMainWindow;

/// The keys that do in every window what the mouse does:
/// - Alt and a letter goes to a control, and presses it when it is a button. The letters stand on the controls for as
///   long as Alt is held, on buttons that bear a picture alone too;
/// - F6 goes to the next window of the program from left to right, Shift and F6 to the one before;
/// - F1 asks for help;
/// - F10 goes to the menus of the main window;
/// - Enter presses the buttons of the main window, as it does on the forms.
class AccesClavier : public QObject
{
    Q_OBJECT

public:
    /// Serves \p principale and all forms.
    AccesClavier(QMainWindow &principale, const Boites &boites);
    ~AccesClavier() override;

Q_SIGNALS:
    void aideDemandee();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    bool touche(QWidget &porteur, const QKeyEvent &evenement);
    bool toucheAlt(QWidget &fenetre, const QKeyEvent &evenement);
    bool sert(const QWidget *fenetre) const;
    void montreLettres();
    void cacheLettres();
    void vaA(QWidget *controle);
    void autreFenetre(bool precedente) const;
    void ouvreMenus();

    QMainWindow &m_principale;
    const Boites &m_boites;
    QTimer m_attente;
    std::unique_ptr<EtiquettesAlt> m_lettres;
};
