#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class Destination;

/// Buttons and picture of a message box, added up.
enum DrapeauBoite {
    vbOKOnly = 0,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbCritical = 16,
    vbExclamation = 48,
    vbDefaultButton2 = 256, ///< Enter presses the second button: No, where a yes cannot be taken back.
    vbYesNoDevant = 524294, ///< Yes and No, in front of the windows of every program.
};

/// The buttons that \p drapeaux asks for: vbOKOnly, vbYesNo or vbYesNoCancel.
inline int BoutonsBoite(int drapeaux)
{
    return drapeaux == vbYesNoDevant ? vbYesNo : drapeaux & 0x7;
}

/// What the file dialog starts with.
struct BoiteFichier
{
    QString DialogTitle;
    QString DefaultExt; ///< Added to a name typed without an extension.
    QString FileName; ///< A pattern such as "*.dat": only files that fit it are shown at first.
};

/// A list of which the operator takes one row.
struct BoiteListe
{
    QString Texte; ///< What it is about, above the list.
    QStringList Entetes;
    std::vector<QStringList> Lignes;
    QString Accepter; ///< Caption of the button that takes the row chosen.
    QString Renoncer;
    int Choisie = 0; ///< Row chosen at first; -1 for none.
};

enum class ReponseBoite { OK = 1, Annuler = 2, Oui = 6, Non = 7 };

/// The one gateway for everything that stops the operator until it is answered.
class Boites
{
public:
    virtual ~Boites();
    /// Shows \p texte with the buttons and the picture of \p drapeaux, under the program's name when \p titre is empty.
    /// Closing the box counts as its most harmless button.
    virtual ReponseBoite MsgBox(const QString &texte, int drapeaux = vbOKOnly, const QString &titre = {}) = 0;
    /// Asks for a line of text; nothing when the operator cancels. The box stands where the desktop puts it unless
    /// \p coin, in twips of the screen, gives its corner.
    virtual std::optional<QString> InputBox(const QString &texte, const QString &titre,
                                            std::optional<QPoint> coin = {}) = 0;
    /// Lets the operator choose a printer; nothing when he cancels.
    virtual std::unique_ptr<Destination> ShowPrinter() = 0;
    /// Lets the operator choose a file to read; gives its full path, or \p dialogue.FileName as it stands when he
    /// cancels.
    virtual QString ShowOpen(const BoiteFichier &dialogue) = 0;

    /// Lets the operator choose the name of a file to write, \p dialogue.FileName at first, and asks before one that
    /// exists; gives its full path, empty when he cancels.
    virtual QString ShowSave(const BoiteFichier &dialogue) = 0;
    /// Lets the operator take a row of a list; nothing when he cancels.
    virtual std::optional<int> Choisit(const BoiteListe &liste) = 0;

    /// Boxes shown so far: whoever moves the focus can tell whether the operator was stopped meanwhile.
    int nombre() const { return m_nombre; }

protected:
    void compte() { ++m_nombre; }

private:
    int m_nombre = 0;
};

/// The boxes of the desktop.
class BoitesQt : public Boites
{
public:
    ReponseBoite MsgBox(const QString &texte, int drapeaux, const QString &titre) override;
    std::optional<QString> InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin) override;
    std::unique_ptr<Destination> ShowPrinter() override;
    QString ShowOpen(const BoiteFichier &dialogue) override;
    QString ShowSave(const BoiteFichier &dialogue) override;
    std::optional<int> Choisit(const BoiteListe &liste) override;
};
