// The batch's small progress window: its caption and label show the
// running count of puzzles made.
#pragma once

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include "core/model/text.h"

namespace combwise {

class BatchProgress : public QWidget {
 public:
  explicit BatchProgress(QWidget* parent) : QWidget(parent, Qt::Tool), m_count(new QLabel(this)) {
    setObjectName("batchprogress");
    m_count->setObjectName("lblbatchcount");
    m_count->setMinimumWidth(180);
    m_count->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_count);
    showCount(0);
    show();
  }
  void showCount(int count) {
    const QString caption = QString::fromStdString(Str(count));
    setWindowTitle(caption);
    m_count->setText("Puzzles made:" + caption);
  }

 private:
  QLabel* m_count;
};

}  // namespace combwise
