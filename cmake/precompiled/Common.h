#pragma once

// What most sources include. Compiled once for the whole tree: each header here costs every source that
// does not need it, so <QtWidgets> as a whole would be slower than this.
#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <vector>
