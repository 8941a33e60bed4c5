#include "ConnectionQualityMonitor.h"
