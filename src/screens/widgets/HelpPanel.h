#pragma once
// What the two quick help panels share: a fixed picture of one location of a
// spread, with lines from the names of its parts to the parts, the text
// lblHelp under it and the Close button. The diary's picture also shows the
// cards list from which the keeper chooses a card.
#include <QWidget>

#include "screens/platform/Form.h"

class QLabel;
class QPushButton;

class HelpPicture : public QWidget {
public:
    HelpPicture(bool withCardsList, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* e) override;

private:
    bool withCardsList_;
};

// A quick help panel: picture, lblHelp and cmdEndHelp "&Close". Placed at
// the top left of the frame; Close, Esc and the loss of focus all unload it.
class HelpPanelForm : public Form {
    Q_OBJECT
public:
    QLabel* lblHelp = nullptr;
    QPushButton* cmdEndHelp = nullptr;

protected:
    HelpPanelForm(const QString& caption, const QString& helpText, bool withCardsList);
    void Form_Load() override;
    void Form_Deactivate() override;
    void Form_KeyDown(int key, Qt::KeyboardModifiers shift, bool& handled) override;
};
