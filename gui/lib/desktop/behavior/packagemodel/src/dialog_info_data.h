#pragma once

#include "child_list.h"

#include <packagemodel/dialog_info_model.h>

namespace Zel {

struct DialogInfoModel::Data : ChildData<DialogInfoModel> {
    using ChildData::ChildData;

    Language::LocalizedStrings topics;
};

} // namespace Zel
