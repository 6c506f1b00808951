#include "ecran.h"

#include <QByteArray>
#include <QDir>

namespace demonstration {

namespace {

constexpr char description[] = R"({"screens":[{"name":"portable","x":0,"y":0,"width":1366,"height":768,)"
                               R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1},)"
                               R"({"name":"projecteur","x":1366,"y":0,"width":1920,"height":1080,)"
                               R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";
constexpr char plateforme[] = "QT_QPA_PLATFORM";

QtMessageHandler suivant = nullptr;

/// A screen that nobody sees has no order of windows and no session; its plugin says so each time.
void taitEcran(QtMsgType type, const QMessageLogContext &contexte, const QString &message)
{
    if (!message.startsWith(u"This plugin does not support") && !message.contains(u"XDG_RUNTIME_DIR"))
        suivant(type, contexte, message);
}

bool sansAffichage()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return false;
#endif
}

} // namespace

EcranPortable::EcranPortable()
    : m_description(QDir::temp().filePath(u"ecran-XXXXXX.json"_qs))
{
    const QByteArray choisie = qgetenv(plateforme);
    if (choisie != "offscreen" && !(choisie.isEmpty() && sansAffichage()))
        return;
    QByteArray valeur = "offscreen";
    if (m_description.open() && m_description.write(description) > 0 && m_description.flush())
        valeur += ":configfile=" + m_description.fileName().toLocal8Bit();
    qputenv(plateforme, valeur);
    suivant = qInstallMessageHandler(taitEcran);
}

} // namespace demonstration
