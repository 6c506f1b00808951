#pragma once

#include <QString>

#include <memory>

class QSoundEffect;

/// Plays sound files, and goes on at once.
class Son
{
public:
    virtual ~Son() = default;
    /// Plays \p fichier from its start, in the place of what is still sounding. Does nothing, and says nothing, where
    /// the file or a sound device is missing.
    virtual void PlaySound(const QString &fichier) = 0;
};

/// The sound of the desktop.
class SonQt final : public Son
{
public:
    SonQt();
    ~SonQt() override;

    void PlaySound(const QString &fichier) override;

private:
    std::unique_ptr<QSoundEffect> m_effet;
};
