# SPDX-License-Identifier: MPL-2.0
"""The rules by subject, in the order of the run. The replies come last: they are judged over all."""

from . import interface, documents, zones, droit, correction, refus  # noqa: F401
from . import selection, outils, liens, hotes, deux_documents, recit, reponses  # noqa: F401
