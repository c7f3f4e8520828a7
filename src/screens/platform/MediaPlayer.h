#pragma once
// A media player control: loads a sound file, plays it, shows play and stop
// buttons, and releases the file. It never blocks: without a sound device a
// sound simply plays to no one.
#include <QWidget>

class QAudioOutput;
class QMediaPlayer;
class QToolButton;

class MediaPlayer : public QWidget {
    Q_OBJECT
public:
    explicit MediaPlayer(QWidget* parent = nullptr);
    ~MediaPlayer() override;

    // Loads a file; plays it at once when autoStart is set. An empty name
    // loads nothing (and stops what played).
    void Open(const QString& path, bool autoStart);
    void Play();
    void Stop();
    // Stops and lets go of the file, so that it can be moved or deleted.
    void Close();
    QString FileName() const { return fileName_; }
    bool IsPlaying() const { return playing_; }

private:
    void EnsurePlayer();
    void UpdateButtons();

    QString fileName_;
    bool playing_ = false;
    QMediaPlayer* player_ = nullptr;
    QAudioOutput* output_ = nullptr;
    QToolButton* play_ = nullptr;
    QToolButton* stop_ = nullptr;
};

// In tests players only record what they were told: no media back end is
// started at all.
namespace MediaPlayerScript {
void Enable();
bool Enabled();
}  // namespace MediaPlayerScript
