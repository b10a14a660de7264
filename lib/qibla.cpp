#include "geo/qibla.h"

#include "engine/angle.h"
#include "lib/answers.h"

using namespace horavex;

horavex_status horavex_qibla(double latitude, double longitude, double* degrees,
                             horavex_error* error) {
    return Answer(error, [&] {
        RequireRange("latitude", latitude, -90.0, 90.0);
        RequireRange("longitude", longitude, -180.0, 180.0);
        Require(degrees != nullptr, "degrees is NULL");
        *degrees = RadToDeg(BearingOfMecca(DegToRad(latitude), -1.0 * DegToRad(longitude)));
    });
}
