#include "model/DocumentOrigin.h"

DocumentOrigin::~DocumentOrigin() = default;
