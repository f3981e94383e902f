#pragma once

namespace tesmo {

[[nodiscard]] float presionSaturacion(float t);
[[nodiscard]] double humedadSaturacion(float t, float p);
[[nodiscard]] float tSatVap(float p);
[[nodiscard]] float tBulboHumedo(float t, float w);

} // namespace tesmo
