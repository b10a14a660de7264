#pragma once

namespace horavex {

/// What the driver of the day needs of the rooms above the engine.
class DayHost {
public:
    virtual ~DayHost() = default;

    /// Shows how far the year's calculation is, 0 to 100 percent, and yields to the event loop.
    virtual void ReportProgress(double percent) = 0;

    /// Works out the qibla of the place that the engine has just taken over.
    virtual void ComputeQibla() = 0;
};

/// Installs the host; nullptr takes it away. The host outlives its installation.
void InstallDayHost(DayHost* host);

/// Works the whole year's table out for CurrentYear and the working location, and with it the
/// qibla unless the calculation gave up (CalcFailed). Needs an installed host.
void RecalculateYear();

}  // namespace horavex
