#pragma once

#include "fenetres/formulaire.h"
#include "fenetres/nom_forme.h"
#include "fenetres/resize.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <any>
#include <functional>
#include <map>
#include <memory>
#include <typeindex>
#include <vector>

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

    /// Makes the name \p nom known; \p fabrique makes the form each time that it is loaded.
    void enregistre(NomForme nom, Fabrique fabrique);
    /// What the forms are made with; \p parent is the main window, which stays behind them, and \p fond what of it lies
    /// below its menus and buttons.
    void prepare(const Contexte &contexte, QWidget *parent, QWidget *fond = nullptr);

    /// Loads the form unless it is loaded; null when no form bears that name or when its loading has unloaded it.
    Formulaire *Charge(NomForme nom);
    /// Loads the form if need be, shows it and makes it the active one.
    void Montre(NomForme nom);
    /// Shows the form in front of the others and leaves the focus where it is.
    void MontreSansFocus(NomForme nom);
    /// Takes the form off the screen; it stays loaded as it is.
    void Cache(NomForme nom);
    /// Unloads the form: it runs Form_Unload, leaves the screen and is deleted by the event loop.
    void Decharge(NomForme nom);
    /// The same for each of \p noms, in their order.
    void Decharge(const std::vector<NomForme> &noms);
    /// Unloads every form that is still loaded.
    void DechargeTout();

    /// Names of all forms, loaded or not.
    QStringList noms() const { return m_fabriques.keys(); }
    /// The loaded form of that name, null when it is not loaded.
    Formulaire *forme(const QString &nom) const { return m_chargees.value(nom); }
    /// Whether the form is loaded, shown or not.
    bool estChargee(const QString &nom) const { return m_chargees.contains(nom); }
    /// Whether the form is loaded and shown, be it behind others.
    bool estVisible(const QString &nom) const;

    /// What the desktop's frame adds to the size of a window, in pixels. A desktop gives a window its frame once the
    /// window stands; until then what it gave to others counts.
    QSize tailleCadre(const QWidget &fenetre);
    /// The same of a window that stands, null as long as it has no frame.
    static QSize bordures(const QWidget &fenetre);
    /// What of the desktop the menus and buttons of the main window and the desktop's own bars leave free, in pixels.
    QRect zoneLibre() const;

    /// What a family of forms keeps while they come and go: one \p Etat for the run, made when it is first asked for.
    template<typename Etat>
    Etat &etat()
    {
        std::any &etat = m_etats[typeid(Etat)];
        if (!etat.has_value())
            etat.emplace<Etat>();
        return *std::any_cast<Etat>(&etat);
    }

    /// What the forms were like when they were first shown.
    Redimensionnement &redimensionnement() { return m_redimensionnement; }

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void focusChange(QWidget *ancien, QWidget *nouveau);
    void active(Formulaire *formulaire);
    void encadre(const QObject *fenetre);
    void place(Formulaire &formulaire) const;

    std::unique_ptr<Contexte> m_contexte;
    std::map<std::type_index, std::any> m_etats;
    QPointer<QWidget> m_parent;
    QPointer<QWidget> m_fond;
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
