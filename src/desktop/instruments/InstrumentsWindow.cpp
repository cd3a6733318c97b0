#include "desktop/instruments/InstrumentsWindow.h"

#include "app/AppDelegate.h"
#include "desktop/instruments/InstrumentsModel.h"
#include "desktop/instruments/importReport.h"
#include "desktop/instruments/unloadInstrument.h"
#include "desktop/widgets/HelpButton.h"
#include "desktop/widgets/closeByKeys.h"
#include "desktop/widgets/icons.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>

namespace velmora {

InstrumentsWindow::InstrumentsWindow(AppDelegate& application, QWidget* parent)
    : QWidget(parent, Qt::Window), application_(application),
      model_(new InstrumentsModel(application, this)), table_(new QTreeView),
      unloadButton_(new QPushButton(icon("unload"), tr("&Unload"))),
      reportButton_(new QPushButton(tr("Import &Report…")))
{
    setWindowTitle(tr("Instruments"));
    closeByKeys(*this);

    table_->setModel(model_);
    table_->setRootIsDecorated(false);
    table_->setAlternatingRowColors(true);
    table_->setAccessibleName(tr("Loaded instruments"));
    table_->header()->setStretchLastSection(false);
    table_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    table_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    auto* openButton = new QPushButton(icon("open"), tr("&Open…"));
    openButton->setToolTip(tr("Open a SoundFont, a GigaSampler bank or an organ"));
    unloadButton_->setToolTip(tr("Free the memory that the samples of this instrument use"));
    reportButton_->setToolTip(tr("Show what was imported and what was left out"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(openButton);
    buttons->addWidget(unloadButton_);
    buttons->addStretch();
    buttons->addWidget(reportButton_);
    buttons->addWidget(new HelpButton("instruments", *this));
    auto* column = new QVBoxLayout(this);
    column->addWidget(table_);
    column->addLayout(buttons);
    resize(420, 260);

    connect(openButton, &QPushButton::clicked, this, &InstrumentsWindow::openRequested);
    connect(unloadButton_, &QPushButton::clicked, this, &InstrumentsWindow::unload);
    connect(reportButton_, &QPushButton::clicked, this, &InstrumentsWindow::showReport);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& index) {
                updateButtons();
                if (index.isValid() && index.row() != currentRow())
                    emit instrumentChosen(static_cast<std::size_t>(index.row()));
            });
    connect(&application_, &AppDelegate::instrumentsChanged, this, &InstrumentsWindow::showCurrent);
    connect(&application_, &AppDelegate::instrumentChanged, this, &InstrumentsWindow::showCurrent);
    updateButtons();
}

std::size_t InstrumentsWindow::selectedRow() const
{
    return static_cast<std::size_t>(table_->currentIndex().row());
}

void InstrumentsWindow::showCurrent()
{
    if (const int row = currentRow(); row != kNone)
        table_->setCurrentIndex(model_->index(row, 0));
    updateButtons();
}

int InstrumentsWindow::currentRow() const
{
    const auto& instruments = application_.instruments();
    const auto current = std::ranges::find_if(
        instruments, [this](const auto& document) { return application_.isCurrent(*document); });
    return current == instruments.end() ? kNone : static_cast<int>(current - instruments.begin());
}

void InstrumentsWindow::updateButtons()
{
    const bool isSelected = table_->currentIndex().isValid();
    const InstrumentDocument* document =
        isSelected ? application_.instruments().at(selectedRow()).get() : nullptr;
    const bool isFromFile = document != nullptr && document->isFromFile();
    unloadButton_->setEnabled(isFromFile && document->instrument() != nullptr);
    reportButton_->setEnabled(isFromFile);
}

void InstrumentsWindow::unload()
{
    const QString problem = unloadInstrument(application_, selectedRow());
    if (!problem.isEmpty())
        emit refused(problem);
}

void InstrumentsWindow::showReport()
{
    showImportReport(*this, *application_.instruments().at(selectedRow()));
}

} // namespace velmora
