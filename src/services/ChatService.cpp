#include "ChatService.h"
