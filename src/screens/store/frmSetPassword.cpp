#include "screens/store/frmSetPassword.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "screens/platform/MsgBox.h"
#include "screens/widgets/ScreenPlacement.h"

frmSetPassword::frmSetPassword() {
    setObjectName(QStringLiteral("frmSetPassword"));
    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel(tr("Enter Password:"), this), 0, 0);
    grid->addWidget(new QLabel(tr("Confirm Password:"), this), 1, 0);
    txtPassword1 = new QLineEdit(this);
    txtPassword1->setObjectName(QStringLiteral("txtPassword1"));
    txtPassword2 = new QLineEdit(this);
    txtPassword2->setObjectName(QStringLiteral("txtPassword2"));
    for (QLineEdit* box : {txtPassword1, txtPassword2}) {
        box->setEchoMode(QLineEdit::Password);
        box->setMaxLength(25);
    }
    grid->addWidget(txtPassword1, 0, 1, 1, 2);
    grid->addWidget(txtPassword2, 1, 1, 1, 2);
    cmdOK = new QPushButton(tr("&OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdCancel = new QPushButton(tr("&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    grid->addWidget(cmdOK, 2, 1);
    grid->addWidget(cmdCancel, 2, 2);
    resize(340, 120);
    connect(cmdOK, &QPushButton::clicked, this, Handler([this] { cmdOK_Click(); }));
    connect(cmdCancel, &QPushButton::clicked, this, Handler([this] { cmdCancel_Click(); }));
    // Enter in the first box goes on to the second; Enter there acts as OK.
    connect(txtPassword1, &QLineEdit::returnPressed, this, [this] { txtPassword2->setFocus(); });
    connect(txtPassword2, &QLineEdit::returnPressed, this, Handler([this] { cmdOK_Click(); }));
}

void frmSetPassword::Form_Load() {
    setCaption(tr("Set Password"));
    CentreInFrame(*this);
}

void frmSetPassword::cmdOK_Click() {
    if (txtPassword1->text() == txtPassword2->text()) {
        Password = txtPassword1->text();
        PasswordSet = true;
        Hide();
        return;
    }
    MsgBox(tr("The two passwords do not match."), vbInformation);
    txtPassword1->clear();
    txtPassword2->clear();
    txtPassword1->setFocus();
}

void frmSetPassword::cmdCancel_Click() {
    PasswordSet = false;
    Hide();
}

void frmSetPassword::Form_KeyDown(int key, Qt::KeyboardModifiers, bool& handled) {
    if (key == Qt::Key_Escape) {
        handled = true;
        cmdCancel_Click();
    }
}
