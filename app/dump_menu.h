// The last context menu in JSON.
#pragma once

#include "dump.h"

Json MenuJson(CStage& stage);
