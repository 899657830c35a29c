"""kestrel-cli, run from outside in folders of its own."""
import json
import os
import subprocess
import tempfile


class Cli:
    """kestrel-cli of a bundle, for a user of its own."""

    def __init__(self, bundle):
        self.program = os.path.join(bundle, 'Contents/Helpers/kestrel-cli')
        self._home = tempfile.TemporaryDirectory(prefix='kestrel-cli-')
        self.home = self._home.name
        self.environment = {**os.environ, 'HOME': self.home, 'LC_ALL': 'C.UTF-8', 'TZ': 'UTC'}
        for variable in ('CONFIG', 'DATA', 'STATE', 'CACHE'):
            self.environment[f'XDG_{variable}_HOME'] = self.path(variable.lower())
        self.environment['TMPDIR'] = self.folder('tmp')
        self.environment.pop('DISPLAY', None)

    def path(self, name):
        return os.path.join(self.home, name)

    def folder(self, name):
        os.makedirs(self.path(name), exist_ok=True)
        return self.path(name)

    def start(self, *arguments, **options):
        return subprocess.Popen([self.program, *arguments], env=self.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)

    def run(self, *arguments, timeout=120):
        """Exit status, the objects on standard output where --json asks for them, and standard error."""
        process = self.start('--json', *arguments)
        output, errors = process.communicate(timeout=timeout)
        return process.returncode, [json.loads(line) for line in output.splitlines()], errors.decode()

    def results(self, *arguments, **options):
        status, objects, _ = self.run(*arguments, **options)
        return status, [each for each in objects if each['event'] == 'result']

    def close(self):
        self._home.cleanup()


def make_clip(path, seconds=2, *arguments):
    """A film whose picture counts, with a tone."""
    subprocess.run(['ffmpeg', '-v', 'error', '-y', '-f', 'lavfi', '-i', f'testsrc2=s=320x240:r=25:d={seconds}',
                    '-f', 'lavfi', '-i', f'sine=d={seconds}', '-c:v', 'libx264', '-preset', 'ultrafast', '-c:a', 'aac',
                    *arguments, path], check=True, stdin=subprocess.DEVNULL)
    return path


def probe(path):
    done = subprocess.run(['ffprobe', '-v', 'error', '-show_streams', '-show_format', '-of', 'json', path],
                          capture_output=True, check=True)
    return json.loads(done.stdout)
