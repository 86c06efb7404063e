#include "port_choice.h"

#include <QComboBox>
#include <QLineEdit>

PortChoice::PortChoice(QComboBox *box, QObject *parent) : QObject(parent), m_box(box)
{
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // inline completion would change what was typed
    connect(box->lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString &text) { m_typed = !text.isEmpty(); });
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this] { m_typed = false; });
}

QString PortChoice::port() const
{
    return m_box ? m_box->currentText() : QString();
}

template<typename Change> void PortChoice::keepTypedText(Change change)
{
    const QString text = m_box->currentText();
    change();
    // Adding the first entry or removing the current one moves the current
    // index, and the box shows that entry's text instead.
    if (m_typed && m_box->currentText() != text)
        m_box->setEditText(text);
}

void PortChoice::appendPort(const QString &port)
{
    if (m_box)
        keepTypedText([&] { m_box->addItem(port); });
}

void PortChoice::removePortAt(int row)
{
    if (m_box)
        keepTypedText([&] { m_box->removeItem(row); });
}

void PortChoice::autoSelect(const QString &port)
{
    if (m_box && !m_typed && !port.isEmpty())
        m_box->setCurrentText(port);
}
