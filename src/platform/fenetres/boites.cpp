#include "fenetres/boites.h"

#include "fenetres/liste_a_choisir.h"
#include "fenetres/sablier.h"
#include "papier/destinations.h"
#include "socle/twips.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

namespace {

QString titreOuProgramme(const QString &titre)
{
    return titre.isEmpty() ? u"VarloTour"_qs : titre;
}

QMessageBox::Icon image(int drapeaux)
{
    switch (drapeaux & 0x70) {
    case vbCritical:
        return QMessageBox::Critical;
    case vbExclamation:
        return QMessageBox::Warning;
    default:
        return QMessageBox::NoIcon;
    }
}

/// Shows \p boite until it is answered, with the usual pointer even in the middle of a long operation.
int interroge(QDialog &boite)
{
    const Sablier::Pause pause;
    return boite.exec();
}

} // namespace

Boites::~Boites() = default;

ReponseBoite BoitesQt::MsgBox(const QString &texte, int drapeaux, const QString &titre)
{
    compte();
    QMessageBox boite(QApplication::activeWindow());
    boite.setWindowTitle(titreOuProgramme(titre));
    boite.setText(QString(texte).replace(u"\r\n"_qs, u"\n"_qs));
    boite.setTextFormat(Qt::PlainText);
    boite.setIcon(image(drapeaux));
    boite.setWindowFlag(Qt::WindowStaysOnTopHint, drapeaux == vbYesNoDevant);
    const int boutons = BoutonsBoite(drapeaux);
    if (boutons == vbYesNo || boutons == vbYesNoCancel) {
        boite.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        boite.setDefaultButton((drapeaux & 0x300) == vbDefaultButton2 ? QMessageBox::No : QMessageBox::Yes);
        boite.setEscapeButton(QMessageBox::No);
    }
    if (boutons == vbYesNoCancel) {
        boite.addButton(QMessageBox::Cancel);
        boite.setEscapeButton(QMessageBox::Cancel);
    }
    switch (interroge(boite)) {
    case QMessageBox::Yes:
        return ReponseBoite::Oui;
    case QMessageBox::No:
        return ReponseBoite::Non;
    case QMessageBox::Cancel:
        return ReponseBoite::Annuler;
    default:
        // A box that the end of the program has shut has been agreed to by nobody.
        return boutons == vbYesNoCancel ? ReponseBoite::Annuler
            : boutons == vbYesNo        ? ReponseBoite::Non
                                        : ReponseBoite::OK;
    }
}

std::optional<QString> BoitesQt::InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin)
{
    compte();
    QInputDialog boite(QApplication::activeWindow());
    boite.setWindowTitle(titreOuProgramme(titre));
    boite.setLabelText(texte);
    if (coin)
        boite.move(enPixels(coin->x()), enPixels(coin->y()));
    return interroge(boite) == QDialog::Accepted ? std::optional(boite.textValue()) : std::nullopt;
}

std::unique_ptr<Destination> BoitesQt::ShowPrinter()
{
    compte();
    auto imprimante = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialogue(imprimante.get(), QApplication::activeWindow());
    if (interroge(dialogue) != QDialog::Accepted)
        return nullptr;
    return std::make_unique<DestinationImprimante>(std::move(imprimante));
}

QString BoitesQt::ShowOpen(const BoiteFichier &dialogue)
{
    compte();
    QFileDialog choix(QApplication::activeWindow(), titreOuProgramme(dialogue.DialogTitle));
    choix.setAcceptMode(QFileDialog::AcceptOpen);
    choix.setFileMode(QFileDialog::ExistingFile);
    choix.setDefaultSuffix(dialogue.DefaultExt);
    choix.setNameFilters({dialogue.FileName, u"*"_qs});
    if (interroge(choix) != QDialog::Accepted || choix.selectedFiles().isEmpty())
        return dialogue.FileName;
    return choix.selectedFiles().constFirst();
}

QString BoitesQt::ShowSave(const BoiteFichier &dialogue)
{
    compte();
    QFileDialog choix(QApplication::activeWindow(), titreOuProgramme(dialogue.DialogTitle));
    choix.setAcceptMode(QFileDialog::AcceptSave);
    choix.setFileMode(QFileDialog::AnyFile);
    choix.setDefaultSuffix(dialogue.DefaultExt);
    choix.selectFile(dialogue.FileName);
    if (interroge(choix) != QDialog::Accepted || choix.selectedFiles().isEmpty())
        return {};
    return choix.selectedFiles().constFirst();
}

std::optional<int> BoitesQt::Choisit(const BoiteListe &liste)
{
    compte();
    ListeAChoisir boite(liste, QApplication::activeWindow());
    boite.setWindowTitle(titreOuProgramme({}));
    return interroge(boite) == QDialog::Accepted ? boite.choisie() : std::nullopt;
}
