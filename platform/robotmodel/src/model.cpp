#include <mel/model.h>

namespace Mel {

Model::Model() = default;
Model::~Model() = default;

} // namespace Mel
