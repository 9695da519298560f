#include "model/SelectionTreeUnit.h"

SelectionTreeUnit::~SelectionTreeUnit()
{
    deleteDescendants(*this);
}
