#include "ui/ConnectionDialog.h"

#include "ui/MessageBoxes.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace corvane {

namespace {

constexpr int kMinimumWidth = 350;
constexpr int kShortestPassword = 8; // characters

/// A page of fields above the button that submits them; Return in a field submits them, too.
class FieldsPage : public QWidget {
public:
    FieldsPage(const char* buttonName, const QString& buttonText)
        : m_layout(new QVBoxLayout(this)) {
        m_layout->addLayout(m_form);
        m_button->setObjectName(QLatin1String(buttonName));
        m_button->setText(buttonText);
        m_button->setAutoDefault(false); // Return in a field would click it a second time
        m_layout->addWidget(m_button);
        m_layout->addStretch();
    }

    QPushButton* button() const { return m_button; }

    QLineEdit* addField(const char* objectName, const QString& label, const QString& placeholder,
                        QLineEdit::EchoMode echo = QLineEdit::Normal) {
        auto* const edit = new QLineEdit;
        edit->setObjectName(QLatin1String(objectName));
        edit->setPlaceholderText(placeholder);
        edit->setEchoMode(echo);
        connect(edit, &QLineEdit::returnPressed, m_button, &QPushButton::click);
        m_form->addRow(label, edit);
        return edit;
    }

private:
    QVBoxLayout* const m_layout;
    QFormLayout* const m_form = new QFormLayout;
    QPushButton* const m_button = new QPushButton;
};

} // namespace

ConnectionDialog::ConnectionDialog(QWidget* parent)
    : QDialog(parent), m_boxes(new MessageBoxes(this)) {
    setObjectName(QStringLiteral("connectionDialog"));
    setWindowTitle(tr("Corvane - Connect"));
    setModal(true);
    setMinimumWidth(kMinimumWidth);

    auto* const server = new QLineEdit;
    server->setObjectName(QStringLiteral("serverEdit"));
    server->setPlaceholderText(QStringLiteral("http://192.168.1.10:8080"));
    auto* const form = new QFormLayout;
    form->addRow(tr("Server:"), server);

    auto* const tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("connectionTabs"));
    tabs->addTab(createLoginPage(), tr("Login"));
    tabs->addTab(createRegisterPage(), tr("Register"));

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(tabs);
}

QWidget* ConnectionDialog::createLoginPage() {
    auto* const page = new FieldsPage("loginButton", tr("Login"));
    m_loginUsername = page->addField("loginUsernameEdit", tr("Username:"), tr("Username"));
    m_loginPassword =
        page->addField("loginPasswordEdit", tr("Password:"), tr("Password"), QLineEdit::Password);
    connect(page->button(), &QPushButton::clicked, this, &ConnectionDialog::onLoginClicked);
    return page;
}

QWidget* ConnectionDialog::createRegisterPage() {
    auto* const page = new FieldsPage("registerButton", tr("Register"));
    m_registerUsername = page->addField("registerUsernameEdit", tr("Username:"), tr("Username"));
    m_registerPassword = page->addField("registerPasswordEdit", tr("Password:"),
                                        tr("Password (min 8 chars)"), QLineEdit::Password);
    m_registerClientName =
        page->addField("registerClientNameEdit", tr("Client Name:"), tr("My PC"));
    connect(page->button(), &QPushButton::clicked, this, &ConnectionDialog::onRegisterClicked);
    return page;
}

void ConnectionDialog::onLoginClicked() {
    const QString username = m_loginUsername->text();
    const QString password = m_loginPassword->text();
    if (username.isEmpty() || password.isEmpty()) {
        m_boxes->warn(tr("Error"), tr("Please fill in all fields."));
        return;
    }
    Q_EMIT loginRequested(username, password);
}

void ConnectionDialog::onRegisterClicked() {
    const QString username = m_registerUsername->text();
    const QString password = m_registerPassword->text();
    if (username.isEmpty() || password.isEmpty()) {
        m_boxes->warn(tr("Error"), tr("Please fill in username and password."));
        return;
    }
    if (password.size() < kShortestPassword) {
        m_boxes->warn(tr("Error"), tr("Password must be at least 8 characters."));
        return;
    }
    Q_EMIT registerRequested(username, password, m_registerClientName->text());
}

} // namespace corvane
