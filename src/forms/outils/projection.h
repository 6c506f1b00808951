#pragma once

#include "engine/affichage_public.h"
#include "outils/place_vue.h"
#include "outils/vue_publique.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <memory>

class QScreen;

/// What the operator has chosen for the public view; kept for the run.
struct ReglagesPublics
{
    std::array<bool, genresDePage> pages{true, true, true, true, true};
    int secondes = 10; ///< Of each page, above 0.
    bool sombre = false;
    PlaceVue place{.ecran = {}, .pleinEcran = true};
};

/// The public view on its screen. It lives on when the form that opened it is closed, reads the base when something has
/// been written, and never while the operator is typing.
class Projection : public QObject
{
    Q_OBJECT

public:
    /// \p fenetre is the operator's window: the view keeps off its screen, and goes when it goes.
    Projection(const Contexte &contexte, QWidget &fenetre);
    ~Projection() override;

    const ReglagesPublics &reglages() const { return m_reglages; }
    void regle(const ReglagesPublics &reglages);

    /// Names of the screens that the view may stand on, the operator's among them only when it is the one there is.
    QStringList ecrans() const;
    /// Where the view stands, or would stand.
    PlaceVue place() const;

    bool montree() const { return m_vue != nullptr; }
    void montre();
    void cache();
    bool enPause() const { return m_pause; }
    void pause(bool tenue);
    void pageSuivante();

    /// Null while nothing is shown.
    VuePublique *vue() const { return m_vue.get(); }

Q_SIGNALS:
    /// It is shown or no longer shown, or the screens have changed.
    void changee();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    /// What the view shows, as the base tells it.
    struct Lue
    {
        std::weak_ptr<const void> base;
        int changements = -1;
        qint32 concours = -1;
    };

    void bat();
    bool aRelire() const;
    void lit();
    void pose();
    QString ecranOperateur() const;

    Contexte m_contexte;
    QPointer<QWidget> m_fenetre;
    ReglagesPublics m_reglages;
    std::unique_ptr<VuePublique> m_vue;
    QTimer m_battement;
    QElapsedTimer m_depuis; ///< Since the last beat.
    QElapsedTimer m_frappe; ///< Since the last key.
    QElapsedTimer m_attente; ///< Since something was found to be read.
    Lue m_lue;
    bool m_pause = false;
};

/// The public view of the run; \p fenetre as in its constructor, at the first call.
Projection &projection(const Contexte &contexte, QWidget &fenetre);
