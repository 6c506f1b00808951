#include "boites_pilotees.h"

#include "papier/imprimante.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace pilote {

namespace {

QMessageBox::StandardButton boutonDe(ReponseBoite reponse)
{
    switch (reponse) {
    case ReponseBoite::Oui:
        return QMessageBox::Yes;
    case ReponseBoite::Non:
        return QMessageBox::No;
    case ReponseBoite::Annuler:
        return QMessageBox::Cancel;
    case ReponseBoite::OK:
        break;
    }
    return QMessageBox::Ok;
}

/// Runs \p montre, which stops the program in the event loop of a box; the hand that answers comes from a timer in
/// there. Without a desktop nobody but the hand gives the front back to the window behind it.
template<typename Boite, typename Montre, typename Main>
auto repond(const Montre &montre, const Main &main)
{
    const QPointer<QWidget> devant = QApplication::activeWindow();
    QTimer attente;
    QObject::connect(&attente, &QTimer::timeout, &attente, [&] {
        auto *boite = qobject_cast<Boite *>(QApplication::activeModalWidget());
        if (boite == nullptr || !boite->isVisible())
            return;
        attente.stop();
        main(*boite);
    });
    attente.start(0);
    auto reponse = montre();
    if (devant != nullptr)
        devant->activateWindow();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return reponse;
}

} // namespace

void BoitesPilotees::attend(const QString &partie, ReponseBoite reponse, const QString &titre)
{
    m_attendues.push_back({.partie = partie, .titre = titre, .reponse = reponse});
}

void BoitesPilotees::attendSaisie(const QString &partie, const std::optional<QString> &saisie)
{
    m_attendues.push_back({.genre = Genre::Saisie, .partie = partie, .texte = saisie});
}

void BoitesPilotees::attendFichier(const QString &titre, const std::optional<QString> &fichier)
{
    m_attendues.push_back({.genre = Genre::Fichier, .partie = {}, .titre = titre, .texte = fichier});
}

void BoitesPilotees::attendChoix(const QString &partie, std::optional<int> ligne)
{
    m_attendues.push_back({.genre = Genre::Liste, .partie = partie, .ligne = ligne});
}

int BoitesPilotees::admet(const QString &partie, ReponseBoite reponse)
{
    m_admises.push_back({partie, reponse});
    return int(m_admises.size()) - 1;
}

void BoitesPilotees::repondATout(ReponseBoite question, const std::optional<QString> &saisie)
{
    m_muette = true;
    m_reponseMuette = question;
    m_saisieMuette = saisie;
}

void BoitesPilotees::verifie()
{
    for (const Attendue &attendue : std::exchange(m_attendues, {}))
        signale(u"La boîte attendue n'est pas venue : « %1%2 »."_qs.arg(attendue.partie, attendue.titre));
}

/// The awaited box that \p texte must be, or one that may come; nothing for an unknown one, which is told.
std::optional<BoitesPilotees::Attendue> BoitesPilotees::suivante(Genre genre, const QString &texte,
                                                                 const QString &titre)
{
    m_textes += texte;
    m_titre = titre;
    const auto admise = genre == Genre::Message
        ? std::ranges::find_if(m_admises, [&](const Admise &a) { return texte.contains(a.partie); })
        : m_admises.end();
    if (!m_attendues.empty() && (m_attendues.front().genre == genre || admise == m_admises.end())) {
        const Attendue attendue = m_attendues.front();
        m_attendues.pop_front();
        const bool bonTitre = attendue.titre.isEmpty() || titre == attendue.titre;
        if (attendue.genre != genre || !bonTitre || !texte.contains(attendue.partie))
            signale(u"La boîte attendue était « %1%2 », « %3%4 » est venue."_qs.arg(attendue.titre, attendue.partie,
                                                                                    titre, texte));
        return attendue;
    }
    if (admise == m_admises.end()) {
        signale(u"Boîte inattendue : « %1%2 »."_qs.arg(titre, texte));
        return std::nullopt;
    }
    ++admise->fois;
    return Attendue{.partie = admise->partie, .reponse = admise->reponse};
}

ReponseBoite BoitesPilotees::MsgBox(const QString &texte, int drapeaux, const QString &titre)
{
    m_drapeaux = drapeaux;
    if (m_muette) {
        compte();
        return BoutonsBoite(drapeaux) == vbOKOnly ? ReponseBoite::OK : m_reponseMuette;
    }
    const std::optional<Attendue> attendue = suivante(Genre::Message, texte, titre);
    return repond<QMessageBox>([&] { return BoitesQt::MsgBox(texte, drapeaux, titre); },
                               [&](QMessageBox &boite) {
                                   vue(attendue ? attendue->partie : QString(), boite);
                                   QAbstractButton *bouton =
                                       attendue ? boite.button(boutonDe(attendue->reponse)) : nullptr;
                                   if (attendue && bouton == nullptr)
                                       signale(u"La boîte « %1 » n'offre pas le bouton attendu."_qs.arg(texte));
                                   if (bouton == nullptr)
                                       bouton = boite.escapeButton() != nullptr ? boite.escapeButton()
                                                                                : boite.buttons().constFirst();
                                   QTest::mouseClick(bouton, Qt::LeftButton);
                               });
}

std::optional<QString> BoitesPilotees::InputBox(const QString &texte, const QString &titre, std::optional<QPoint> coin)
{
    m_coin = coin;
    if (m_muette) {
        compte();
        return m_saisieMuette;
    }
    const std::optional<Attendue> attendue = suivante(Genre::Saisie, texte, titre);
    return repond<QInputDialog>([&] { return BoitesQt::InputBox(texte, titre, coin); },
                                [&](QInputDialog &boite) {
                                    const bool saisie = attendue && attendue->texte;
                                    if (saisie)
                                        boite.setTextValue(*attendue->texte);
                                    vue(attendue ? attendue->partie : QString(), boite);
                                    boite.done(saisie ? QDialog::Accepted : QDialog::Rejected);
                                });
}

std::unique_ptr<Destination> BoitesPilotees::ShowPrinter()
{
    compte();
    return imprimante ? imprimante() : nullptr;
}

std::optional<QString> BoitesPilotees::fichierChoisi(const BoiteFichier &dialogue)
{
    compte();
    if (m_muette)
        return std::nullopt;
    const std::optional<Attendue> attendue = suivante(Genre::Fichier, dialogue.FileName, dialogue.DialogTitle);
    return attendue ? attendue->texte : std::nullopt;
}

QString BoitesPilotees::ShowOpen(const BoiteFichier &dialogue)
{
    return fichierChoisi(dialogue).value_or(dialogue.FileName);
}

QString BoitesPilotees::ShowSave(const BoiteFichier &dialogue)
{
    return fichierChoisi(dialogue).value_or(QString());
}

std::optional<int> BoitesPilotees::Choisit(const BoiteListe &liste)
{
    compte();
    m_lignes = liste.Lignes;
    if (m_muette)
        return std::nullopt;
    const std::optional<Attendue> attendue = suivante(Genre::Liste, liste.Texte, {});
    return attendue ? attendue->ligne : std::nullopt;
}

void BoitesPilotees::vue(const QString &, QWidget &) {}

} // namespace pilote
