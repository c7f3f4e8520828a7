#include "screens/platform/MediaPlayer.h"

#include <QAudioOutput>
#include <QHBoxLayout>
#include <QMediaPlayer>
#include <QStyle>
#include <QToolButton>
#include <QUrl>

#include "core/platform/FileSys.h"

namespace {
bool gScripted = false;
}

namespace MediaPlayerScript {
void Enable() { gScripted = true; }
bool Enabled() { return gScripted; }
}  // namespace MediaPlayerScript

MediaPlayer::MediaPlayer(QWidget* parent) : QWidget(parent) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    play_ = new QToolButton(this);
    play_->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
    play_->setToolTip(tr("Play"));
    play_->setObjectName(QStringLiteral("cmdPlay"));
    stop_ = new QToolButton(this);
    stop_->setIcon(style()->standardIcon(QStyle::SP_MediaStop));
    stop_->setToolTip(tr("Stop"));
    stop_->setObjectName(QStringLiteral("cmdStop"));
    layout->addWidget(play_);
    layout->addWidget(stop_);
    layout->addStretch();
    connect(play_, &QToolButton::clicked, this, &MediaPlayer::Play);
    connect(stop_, &QToolButton::clicked, this, &MediaPlayer::Stop);
    UpdateButtons();
}

MediaPlayer::~MediaPlayer() { Close(); }

void MediaPlayer::EnsurePlayer() {
    if (player_ || gScripted) return;
    // The back end starts only when a sound is first needed.
    player_ = new QMediaPlayer(this);
    output_ = new QAudioOutput(this);
    player_->setAudioOutput(output_);
    connect(player_, &QMediaPlayer::playbackStateChanged, this, [this](QMediaPlayer::PlaybackState s) {
        playing_ = s == QMediaPlayer::PlayingState;
        UpdateButtons();
    });
    connect(player_, &QMediaPlayer::errorOccurred, this, [this] {
        playing_ = false;
        UpdateButtons();
    });
}

void MediaPlayer::Open(const QString& path, bool autoStart) {
    Stop();
    fileName_ = path.isEmpty() ? QString() : NativePath(path);
    if (!gScripted) {
        if (!fileName_.isEmpty() || player_) EnsurePlayer();
        if (player_) player_->setSource(fileName_.isEmpty() ? QUrl() : QUrl::fromLocalFile(fileName_));
    }
    UpdateButtons();
    if (autoStart && !fileName_.isEmpty()) Play();
}

void MediaPlayer::Play() {
    if (fileName_.isEmpty()) return;
    if (gScripted) {
        playing_ = true;
    } else {
        EnsurePlayer();
        player_->play();
    }
    UpdateButtons();
}

void MediaPlayer::Stop() {
    if (player_) player_->stop();
    playing_ = false;
    UpdateButtons();
}

void MediaPlayer::Close() {
    Stop();
    fileName_.clear();
    if (player_) player_->setSource(QUrl());
    UpdateButtons();
}

void MediaPlayer::UpdateButtons() {
    play_->setEnabled(!fileName_.isEmpty() && !playing_);
    stop_->setEnabled(playing_);
}
