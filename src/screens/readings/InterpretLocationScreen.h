#pragma once
// The interpretation page of one location, shared by the reading and the
// diary: what the location means (title, description, questions) and, when a
// card lies there, what the card means here (its picture, upright or
// reversed, its description or keywords, an enlarged picture and its sound).
// Without a card the page shrinks to the location alone. The page closes as
// soon as it loses the focus, so one location at a time is interpreted.
#include "core/records/Records.h"
#include "screens/platform/Form.h"

class ClickLabel;
class ImageBox;
class MediaPlayer;
class QFrame;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

class InterpretLocationScreen : public Form {
    Q_OBJECT
public:
    QLabel* lblTitle = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lbltheQuestions = nullptr;
    QLabel* lblQuestions = nullptr;
    QFrame* linSeparator = nullptr;
    ImageBox* imgCard = nullptr;
    QLabel* lblCardTitle = nullptr;
    QRadioButton* optDescription = nullptr;
    QRadioButton* optKeywords = nullptr;
    QPlainTextEdit* lblText = nullptr;
    ClickLabel* picEnlargedBackground = nullptr;
    ImageBox* imgEnlargedCard = nullptr;
    QPushButton* cmdEnlargePic = nullptr;
    QPushButton* cmdClose = nullptr;
    MediaPlayer* MediaPlayer1 = nullptr;

    void optDescription_Click();
    void optKeywords_Click();
    void cmdEnlargePic_Click();
    void cmdClose_Click();
    bool Enlarged() const { return Enlarged_; }

protected:
    // enlargeHidesPlayer: the enlarged picture also hides the sound player.
    explicit InterpretLocationScreen(bool enlargeHidesPlayer);

    // What the twin screens tell about the location in question.
    virtual int Location() const = 0;
    virtual bool CardLiesThere() const = 0;
    virtual int CardNumber() const = 0;  // 0: none
    virtual bool CardUpright() const = 0;
    // Marks the location on its screen while the page is open, or unmarks it.
    virtual void MarkLocation(int location, bool marked) = 0;

    void Form_Load() override;
    void Form_Deactivate() override;
    void Form_Unload(bool& cancel) override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;

private:
    void ArrangeLocationText();
    void PrepareEnlargedCard();
    void PlayCardSound();
    const CardRecord& Card() const;
    QString CardPicture() const;

    bool enlargeHidesPlayer_;
    bool Enlarged_ = false;
    int L = 0;
};
