#!/usr/bin/env python3
"""Fault campaigns (./test --faults)"""
import argparse, sys, tempfile, time, shutil, random
from pathlib import Path
import random_kills, calls, full_disks, power_cuts, faulty_docks
from common import Setting, make_templates
p=argparse.ArgumentParser(); p.add_argument('--programs',type=Path); p.add_argument('--seed',type=int,default=1); p.add_argument('--few',action='store_true'); p.add_argument('names',nargs='*')
a=p.parse_args()
w=Path(tempfile.mkdtemp(prefix='wardlock-faults-'))
s=Setting(a.programs,w,a.seed,a.few)
t=time.time()
make_templates(s); print('templates',time.time()-t)
for n,m in dict(kills=random_kills,calls=calls, disks=full_disks, power=power_cuts, docks=faulty_docks).items():
    if not a.names or n in a.names: print(m.run(s), time.time()-t)
shutil.rmtree(w)
