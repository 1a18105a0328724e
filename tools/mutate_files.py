#!/usr/bin/env python3
"""One-line mutants of files/*.cpp, applied one at a time against a test binary.

Each mutant changes one line (a comparison, a connective, a flag, a whole number
by one, a string's text, or drops a statement); the target is rebuilt and run
with the filter, and the line is put back. Results go to OUT.json, so a run can
be stopped and resumed.

usage: mutate_files.py SRC_ROOT BUILD_DIR TARGET FILTER OUT.json [--sample N] [--seed S] [--only ids]
e.g.   tools/mutate_files.py . build holdem_tests '*' /tmp/mutants.json --sample 60
"""
import json, random, re, subprocess, sys, os, time

src, build, target, gfilter, out = sys.argv[1:6]
args = sys.argv[6:]
sample = int(args[args.index('--sample') + 1]) if '--sample' in args else 0
seed = int(args[args.index('--seed') + 1]) if '--seed' in args else 1
only = set(args[args.index('--only') + 1].split(',')) if '--only' in args else None

FILES = ['files/seq_text.cpp', 'files/roster_file.cpp', 'files/new_game.cpp', 'files/settings.cpp',
         'files/standings_file.cpp', 'files/safe_file.cpp', 'files/statistics.cpp']

OPS = [(r'<=', '<'), (r'>=', '>'), (r'(?<![<>=!])<(?![<=])', '<='), (r'(?<![<>=-])>(?![>=])', '>='),
       (r'==', '!='), (r'!=', '=='), (r'&&', '||'), (r'\|\|', '&&'), (r'\btrue\b', 'false'),
       (r'\bfalse\b', 'true'), (r'(?<=[\w)\]] )\+(?= [\w(])', '-'), (r'(?<=[\w)\]] )-(?= [\w(])', '+')]


def mutants():
    out = []
    for f in FILES:
        lines = open(os.path.join(src, f)).read().split('\n')
        for i, line in enumerate(lines):
            s = line.strip()
            if not s or s.startswith('//') or s.startswith('#include') or s.startswith('namespace'):
                continue
            code = line.split('//')[0] if '"' not in line else line
            # strings: change the text of each literal
            for m in re.finditer(r'"((?:[^"\\]|\\.)*)"', code):
                body = m.group(1)
                if len(body) >= 1 and not body.startswith('\\x'):
                    new = line[:m.start()] + '"' + body + 'x"' + line[m.end():]
                    out.append((f, i, new, 'str'))
            nostr = re.sub(r'"(?:[^"\\]|\\.)*"', lambda m: ' ' * len(m.group(0)), code)
            for pat, rep in OPS:
                for m in re.finditer(pat, nostr):
                    new = line[:m.start()] + rep + line[m.end():]
                    out.append((f, i, new, 'op'))
            for m in re.finditer(r'(?<![\w.])(\d+)(?![\w.])', nostr):
                n = int(m.group(1))
                for d in (1, -1):
                    if n + d < 0:
                        continue
                    new = line[:m.start()] + str(n + d) + line[m.end():]
                    out.append((f, i, new, 'num'))
            if s.endswith(';') and not s.startswith('return') and '{' not in s and '}' not in s:
                out.append((f, i, '', 'del'))
    return out


def run(cmd, timeout):
    try:
        r = subprocess.run(cmd, shell=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=timeout)
        return r.returncode, r.stdout.decode(errors='replace')
    except subprocess.TimeoutExpired:
        return 'timeout', ''


all_m = mutants()
ids = list(range(len(all_m)))
if only:
    ids = [i for i in ids if str(i) in only]
elif sample:
    random.Random(seed).shuffle(ids)
    ids = sorted(ids[:sample])
print(len(all_m), 'mutants,', len(ids), 'to run', flush=True)
results = {}
if os.path.exists(out):
    results = json.load(open(out))
for k in ids:
    if str(k) in results:
        continue
    f, i, new, kind = all_m[k]
    path = os.path.join(src, f)
    orig = open(path).read()
    lines = orig.split('\n')
    old = lines[i]
    lines[i] = new
    open(path, 'w').write('\n'.join(lines))
    try:
        rc, log = run(f'nice cmake --build {build} --target {target} -j1', 600)
        if rc != 0:
            status = 'invalid'
        else:
            rc, log = run(f'cd {build}/bin && ./{target} --gtest_filter="{gfilter}" --gtest_brief=1 --gtest_fail_fast', 300)
            status = 'survived' if rc == 0 else 'killed'
    finally:
        open(path, 'w').write(orig)
        os.utime(path, None)
    results[str(k)] = {'file': f, 'line': i + 1, 'old': old.strip(), 'new': new.strip(), 'kind': kind,
                       'status': status}
    json.dump(results, open(out, 'w'), indent=1)
    print(k, status, f, i + 1, '|', old.strip()[:60], '=>', new.strip()[:60], flush=True)
