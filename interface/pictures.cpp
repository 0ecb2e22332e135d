#include <QPainter>

#include "interface/JeuPoker.h"

Picture JeuPoker::StorePicture(const QString& name, const QPixmap& pixmap) {
  pictures_.push_back(std::make_unique<StoredPicture>(StoredPicture{name, pixmap}));
  return pictures_.back().get();
}

void JeuPoker::BuildPictures() {
  // Every stored control holds a picture of its own name.
  for (auto it = controlsByName_.begin(); it != controlsByName_.end(); ++it) {
    for (Control* c : it.value()) {
      if (!c) continue;
      const bool stored = c->parentWidget() == SSCartes || c->parentWidget() == SSCartes2;
      if (!stored) continue;
      QPixmap pm(c->width(), c->height());
      pm.fill(Qt::darkGray);
      c->SetPicture(StorePicture(c->FullName(), pm));
    }
  }
}
