#include "screens/store/frmGetPassword.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "screens/widgets/ScreenPlacement.h"

frmGetPassword::frmGetPassword() {
    setObjectName(QStringLiteral("frmGetPassword"));
    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel(tr("Password:"), this), 0, 0);
    txtPassword = new QLineEdit(this);
    txtPassword->setObjectName(QStringLiteral("txtPassword"));
    txtPassword->setEchoMode(QLineEdit::Password);
    txtPassword->setMaxLength(25);
    grid->addWidget(txtPassword, 0, 1, 1, 2);
    cmdOK = new QPushButton(tr("&OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    grid->addWidget(cmdOK, 1, 1);
    grid->addWidget(cmdCancel, 1, 2);
    resize(320, 90);
    connect(cmdOK, &QPushButton::clicked, this, Handler([this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    // Enter in the box acts as OK.
    connect(txtPassword, &QLineEdit::returnPressed, this, Handler([this] { cmdOK_Click(); }));
}

void frmGetPassword::Form_Load() {
    setCaption(tr("Confirm Password"));
    CentreInFrame(*this);
}

void frmGetPassword::cmdOK_Click() {
    Password = txtPassword->text();
    Hide();
}

void frmGetPassword::cmdCancel_Click() {
    Password.clear();
    Unload();
}

void frmGetPassword::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    }
}
