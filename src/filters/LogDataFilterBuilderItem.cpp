#include "filters/LogDataFilterBuilderItem.h"

#include "filters/ChoiceDelegate.h"
#include "model/NumberText.h"

#include <QComboBox>
#include <QEvent>
#include <QGraphicsProxyWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>

namespace
{

/** By their LogDataSetFilterOperator. A criterion's own text has "=" where users know "==". */
const char *const kOperators[] = {">", ">=", "<", "<=", "==", "!="};

/** A name may be longer than the item is wide; the buttons still have to be in reach. */
const int kNarrowestVariableBox = 80;

/** Asked first, since a connection to a slot that is not there leaves a warning. */
bool clearsFilters(const LogDataSourceItem *source)
{
    return source->metaObject()->indexOfSlot("clearFilters()") >= 0;
}

} // namespace

LogDataFilterBuilderItem::LogDataFilterBuilderItem(QDeclarativeItem *parent)
    : QDeclarativeItem(parent)
    , m_proxy(nullptr)
    , m_container(new QWidget)
    , m_variableBox(new QComboBox)
    , m_operatorBox(new QComboBox)
    , m_valueEdit(new QLineEdit)
    , m_operators(new QStandardItemModel(this))
    , m_noVariables(new QStandardItemModel(this))
{
    makeWidgets();
    m_proxy = new QGraphicsProxyWidget(graphicsParent(this));
    m_proxy->setWidget(m_container);
    m_proxy->setPos(0, 0);
    connect(this, SIGNAL(widthChanged()), SLOT(resizeProxy()));
    connect(this, SIGNAL(heightChanged()), SLOT(resizeProxy()));
    showOperators();
    m_valueEdit->installEventFilter(this);
}

void LogDataFilterBuilderItem::makeWidgets()
{
    // A list of its own length, with a scroll bar: a pop-up as long as a log has variables would
    // end outside the window.
    m_container->setStyleSheet(QLatin1String("QComboBox { combobox-popup: 0; }"));
    m_valueEdit->setFocusPolicy(Qt::ClickFocus);
    QHBoxLayout *layout = new QHBoxLayout(m_container);
    layout->addWidget(m_variableBox);
    layout->addWidget(m_operatorBox);
    layout->addWidget(m_valueEdit);
    m_variableBox->setItemDelegate(new ChoiceDelegate(m_variableBox));
    m_variableBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_variableBox->setMinimumWidth(kNarrowestVariableBox);
    m_operatorBox->setItemDelegate(new ChoiceDelegate(m_operatorBox));
    addName("Variable", m_variableBox);
    addName("Comparison", m_operatorBox);
    addName("Value", m_valueEdit);
    addButton("Add Criteria", SLOT(addFilter()));
    addButton("Clear Criteria", SIGNAL(clearFilters()));
}

/** For screen readers: a box or field shows just its value, and there is no room for labels. */
void LogDataFilterBuilderItem::addName(const char *name, QWidget *widget)
{
    QLabel *label = new QLabel(QLatin1String(name), m_container);
    label->setBuddy(widget);
    label->hide();
}

void LogDataFilterBuilderItem::addButton(const char *text, const char *member)
{
    QPushButton *button = new QPushButton(QLatin1String(text));
    connect(button, SIGNAL(clicked()), member);
    m_container->layout()->addWidget(button);
}

void LogDataFilterBuilderItem::showOperators()
{
    for (size_t i = 0; i < sizeof kOperators / sizeof *kOperators; ++i)
        m_operators->appendRow(new QStandardItem(QLatin1String(kOperators[i])));
    m_operatorBox->setModel(m_operators);
}

void LogDataFilterBuilderItem::setDataSource(LogDataSourceItem *source)
{
    if (m_dataSource && clearsFilters(m_dataSource))
        disconnect(this, SIGNAL(clearFilters()), m_dataSource, SLOT(clearFilters()));
    m_dataSource = source;
    if (source && clearsFilters(source))
        connect(this, SIGNAL(clearFilters()), source, SLOT(clearFilters()));
    m_variableBox->setModel(source ? source->xVariableModel() : m_noVariables);
}

int LogDataFilterBuilderItem::value() const
{
    return m_valueEdit->text().toInt();
}

void LogDataFilterBuilderItem::setValue(int value)
{
    // What the script writes must not bring up the script's number entry again.
    m_valueEdit->setFocusPolicy(Qt::NoFocus);
    m_valueEdit->setText(QString::number(value));
    m_valueEdit->setFocusPolicy(Qt::ClickFocus);
}

bool LogDataFilterBuilderItem::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_valueEdit || event->type() != QEvent::FocusIn)
        return false;
    emit startEditing();
    return true;
}

void LogDataFilterBuilderItem::resizeProxy()
{
    m_proxy->resize(width(), height());
}

void LogDataFilterBuilderItem::addFilter()
{
    bool isNumber = false;
    const double value = m_valueEdit->text().toDouble(&isNumber);
    if (!isNumber) {
        qDebug("Failed to convert value from filter value line edit.");
        return;
    }
    if (!m_dataSource)
        return;
    LogDataSetFilter::Builder builder;
    builder.variable(m_variableBox->itemText(m_variableBox->currentIndex()))
        .filterOperator(m_operatorBox->currentIndex())
        .value(NumberText::toFloat(value));
    m_dataSource->addFilter(new LogDataSetFilter(&builder, nullptr));
}
