#pragma once

#include "platform/formulaire.h"
#include "ui/resize.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

/// The forms by their names: each is loaded, shown, hidden and unloaded by it, so that no form needs to know another's
/// class. A name that no form bears is passed over. It also watches the focus, and runs the handlers of the control
/// that loses it and of the one that gets it, in this order, whatever forms they stand on; message boxes and menus take
/// no focus in this sense.
class Formulaires : public QObject
{
    Q_OBJECT

public:
    using Fabrique = std::function<Formulaire *(const Contexte &, QWidget *parent)>;

    explicit Formulaires(QObject *parent = nullptr);
    ~Formulaires() override;

    void enregistre(const QString &nom, Fabrique fabrique);
    /// What the forms are made with; \p parent is the main window, which stays behind them.
    void prepare(const Contexte &contexte, QWidget *parent);

    /// Loads the form unless it is loaded; null when no form bears that name or when its loading has unloaded it.
    Formulaire *Charge(const QString &nom);
    /// Loads the form if need be, shows it and makes it the active one.
    void Montre(const QString &nom);
    /// Shows the form in front of the others and leaves the focus where it is.
    void MontreSansFocus(const QString &nom);
    void Cache(const QString &nom);
    void Decharge(const QString &nom);
    void Decharge(const QStringList &noms);
    /// Unloads every form that is still loaded.
    void DechargeTout();

    /// Names of all forms, loaded or not.
    QStringList noms() const { return m_fabriques.keys(); }
    /// The loaded form of that name, null when it is not loaded.
    Formulaire *forme(const QString &nom) const { return m_chargees.value(nom); }
    bool estChargee(const QString &nom) const { return m_chargees.contains(nom); }
    bool estVisible(const QString &nom) const;

    /// What the desktop's frame adds to the size of a window, in pixels. A desktop gives a window its frame once the
    /// window stands; until then what it gave to others counts.
    QSize cadre(const QWidget &fenetre);

    Redimensionnement &redimensionnement() { return m_redimensionnement; }

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void focusChange(QWidget *ancien, QWidget *nouveau);
    void active(Formulaire *formulaire);
    void place(Formulaire &formulaire) const;

    std::unique_ptr<Contexte> m_contexte;
    QPointer<QWidget> m_parent;
    Redimensionnement m_redimensionnement;
    QHash<QString, Fabrique> m_fabriques;
    QHash<QString, QPointer<Formulaire>> m_chargees;
    QPointer<Formulaire> m_active;
    QPointer<Formulaire> m_devant;
    QPointer<QWidget> m_controle;
    QPointer<Formulaire> m_formeDuControle;
    QSize m_cadre{0, 0};
    bool m_enAttente = false;
    bool m_sourisPressee = false;
    bool m_pressionPerdue = false;
};
