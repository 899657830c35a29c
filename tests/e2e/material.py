"""What tests work on: copies of the bundle, and films."""
import os
import plistlib
import shutil
import subprocess
import xml.etree.ElementTree as ElementTree

CATALOGUES = os.path.join(os.path.dirname(os.path.abspath(__file__)), '../../resources/translations')


def copy_bundle(bundle, destination, **info_changes):
    """A copy of the bundle (links kept) with changed entries of Info.plist; None removes one."""
    shutil.copytree(bundle, destination, symlinks=True)
    path = os.path.join(destination, 'Contents', 'Info.plist')
    with open(path, 'rb') as file:
        entries = plistlib.load(file) | info_changes
    with open(path, 'wb') as file:
        plistlib.dump({key: value for key, value in entries.items() if value is not None}, file)
    return destination


def bundle_information(bundle):
    with open(os.path.join(bundle, 'Contents', 'Info.plist'), 'rb') as file:
        return plistlib.load(file)


def catalogue(language):
    """The translations of the English texts."""
    messages = ElementTree.parse(os.path.join(CATALOGUES, f'TarnwellPublic_{language}.ts')).iter('message')
    return {message.findtext('source'): message.findtext('translation') for message in messages}


def unarchived(data):
    """A keyed archive as dictionaries; an object also has its class's name under "class"."""
    archive = plistlib.loads(data)

    def resolved(value):
        if isinstance(value, plistlib.UID):
            value = archive['$objects'][value.data]
        if not isinstance(value, dict):
            return None if value == '$null' else value
        if 'NS.keys' in value:
            return {resolved(key): resolved(item) for key, item in zip(value['NS.keys'], value['NS.objects'])}
        fields = {key: resolved(item) for key, item in value.items() if key != '$class'}
        return fields | {'class': archive['$objects'][value['$class'].data]['$classname']}
    return resolved(archive['$top']['root'])


def make_clip(path, seconds=2, size='320x240'):
    """A film with a moving picture and a tone, in codecs that no target takes as they are."""
    subprocess.run(['ffmpeg', '-v', 'error', '-y', '-f', 'lavfi', '-i', f'testsrc2=s={size}:r=25:d={seconds}',
                    '-f', 'lavfi', '-i', f'sine=d={seconds}', '-c:v', 'mpeg2video', '-q:v', '3', '-c:a', 'mp2', path],
                   check=True, stdin=subprocess.DEVNULL)
    return path
