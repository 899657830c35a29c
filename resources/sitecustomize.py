"""Keeps plug-ins out of the download engine, wherever on this machine they are."""

import sys

for kind in ("extractor", "postprocessor"):
    sys.modules["yt_dlp_plugins." + kind] = None  # as one that is not there
