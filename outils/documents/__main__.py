# SPDX-License-Identifier: MPL-2.0
import sys

from .principal import main

sys.exit(main())
