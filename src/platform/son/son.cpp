#include "son/son.h"

#include <QAudioDevice>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace {

/// Whether anything here can sound. The first look starts the system's sound service, which complains on the console
/// of a machine that has none.
bool sortieSonore()
{
    const auto muette = [](QtMsgType, const QMessageLogContext &, const QString &) {};
    const QtMessageHandler console = qInstallMessageHandler(muette);
    const bool presente = !QMediaDevices::audioOutputs().isEmpty();
    qInstallMessageHandler(console);
    return presente;
}

} // namespace

SonQt::SonQt() = default;
SonQt::~SonQt() = default;

void SonQt::PlaySound(const QString &fichier)
{
    if (!QFileInfo(fichier).isFile() || !sortieSonore())
        return;
    const QUrl source = QUrl::fromLocalFile(fichier);
    if (m_effet == nullptr || m_effet->source() != source) {
        m_effet = std::make_unique<QSoundEffect>();
        m_effet->setSource(source);
    }
    // A file that is no sound has been tried once, and said so; it is not tried again.
    if (m_effet->status() != QSoundEffect::Error)
        m_effet->play();
}
