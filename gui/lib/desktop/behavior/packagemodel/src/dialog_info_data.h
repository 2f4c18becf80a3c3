#pragma once

#include "child_list.h"
#include "localized_texts.h"

#include <packagemodel/dialog_info_model.h>

namespace Zel {

struct PACKAGEMODEL_NO_EXPORT DialogInfoModel::Data : ChildData<DialogInfoModel> {
    using ChildData::ChildData;

    CachedTexts topics;
};

} // namespace Zel
