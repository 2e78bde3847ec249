; The orchestra of the soundtrack. Stereo; every instrument adds to one of four buses (drums, bass,
; music, effects) and to two sends (delay, reverb); the instrument Mix sums them up.
; Pitches are MIDI note numbers, levels are plain amplitude, times are seconds.
sr = 44100
ksmps = 15
nchnls = 2
0dbfs = 1
seed 7

gaDrumL init 0
gaDrumR init 0
gaBass init 0
gaMusL init 0
gaMusR init 0
gaFxL init 0
gaFxR init 0
gaDelL init 0
gaDelR init 0
gaRevL init 0
gaRevR init 0
gkDuck init 1

; Add a mono signal to the music bus: position 0..1 left to right, shares for delay and reverb.
opcode ToMusic, 0, akkk
  asig, kpan, kdelay, krev xin
  aL = asig * sqrt(1 - kpan)
  aR = asig * sqrt(kpan)
  gaMusL += aL
  gaMusR += aR
  gaDelL += aL * kdelay
  gaDelR += aR * kdelay
  gaRevL += aL * krev
  gaRevR += aR * krev
endop

opcode ToDrums, 0, akk
  asig, kpan, krev xin
  aL = asig * sqrt(1 - kpan)
  aR = asig * sqrt(kpan)
  gaDrumL += aL
  gaDrumR += aR
  gaRevL += aL * krev
  gaRevR += aR * krev
endop

; Pad: note, level, filter at start and end, attack, release. Three saws a side.
instr Pad
  icps = cpsmidinn(p4)
  ilen = p3
  xtratim p9
  kenv linsegr 0, p8, 1, 0.1, 0.92, p9, 0
  kcut expseg p6, ilen, p7, p9, p7 * 0.6
  iph1 random 0, 1
  iph2 random 0, 1
  iph3 random 0, 1
  iph4 random 0, 1
  iph5 random 0, 1
  iph6 random 0, 1
  aL vco2 0.3, icps * cent(-13), 16, 0.5, iph1
  aL2 vco2 0.3, icps * cent(4), 16, 0.5, iph2
  aL3 vco2 0.3, icps * cent(11), 16, 0.5, iph3
  aR vco2 0.3, icps * cent(13), 16, 0.5, iph4
  aR2 vco2 0.3, icps * cent(-4), 16, 0.5, iph5
  aR3 vco2 0.3, icps * cent(-11), 16, 0.5, iph6
  aL moogladder2 aL + aL2 + aL3, kcut, 0.12
  aR moogladder2 aR + aR2 + aR3, kcut * 1.04, 0.12
  aL butterhp aL, 130
  aR butterhp aR, 130
  aL *= kenv * p5
  aR *= kenv * p5
  gaMusL += aL
  gaMusR += aR
  gaRevL += aL * 0.35
  gaRevR += aR * 0.35
endin

; Drone: note, level, attack, release.
instr Drone
  icps = cpsmidinn(p4)
  xtratim p7
  kenv linsegr 0, p6, 1, p7, 0
  klfo lfo 0.12, 0.11
  a1 oscili 0.6, icps
  a2 oscili 0.22, icps * 2 * cent(4)
  a3 oscili 0.16, icps * 2 * cent(-4), -1, 0.3
  asig = (a1 + (a2 + a3) * (1 + klfo)) * kenv * p5
  ToMusic asig, 0.5, 0, 0.15
endin

; Wind: level at start, in the middle, at the end.
instr Wind
  kenv linseg p4, p3 * 0.5, p5, p3 * 0.5, p6
  an1 pinker
  an2 pinker
  kl1 lfo 0.5, 0.083
  kl2 lfo 0.5, 0.061
  kf1 = 260 * pow(5, 0.5 + kl1)
  kf2 = 260 * pow(5, 0.5 + kl2)
  aL butterbp an1, kf1, kf1 * 0.7
  aR butterbp an2, kf2, kf2 * 0.7
  aL *= kenv * (0.6 + kl2)
  aR *= kenv * (0.6 + kl1)
  gaFxL += aL
  gaFxR += aR
  gaRevL += aL * 0.2
  gaRevR += aR * 0.2
endin

; Glass bell: note, level, pan, share for the delay.
instr Bell
  icps = cpsmidinn(p4)
  idec = 2 + 2 * (84 - p4) / 40
  idec limit idec, 1.4, 4.5
  kenv expseg 1, idec, 0.001
  ki1 expseg 3.2, 0.9, 0.05, idec, 0.04
  ki2 expseg 1.2, 0.25, 0.02, idec, 0.01
  am1 oscili ki1 * icps, icps * 3.5
  am2 oscili ki2 * icps, icps * 7.07
  a1 oscili 0.55, icps + am1 * 0.5 + am2 * 0.3
  a2 oscili 0.16, icps * 2.003
  a3 oscili 0.06, icps * 5.41
  katt linseg 0, 0.003, 1, 1, 1
  asig = (a1 + a2 + a3) * kenv * katt * p5
  ToMusic asig, p6, p7, 0.4
endin

; Choir: note, level, attack, release.
instr Choir
  xtratim p7
  kenv linsegr 0, p6, 1, p7, 0
  kvib linseg 0, 1.2, 0, 1.5, 1, 1, 1
  klfo lfo 0.0035, 5
  kcps = cpsmidinn(p4) * (1 + klfo * kvib)
  iph random 0, 1
  iph2 random 0, 1
  aL vco2 0.4, kcps * cent(6), 16, 0.5, iph
  aR vco2 0.4, kcps * cent(-6), 16, 0.5, iph2
  an pinker
  aL += an * 0.06
  aR += an * 0.06
  aLf butterbp aL, 690, 110
  aL2 butterbp aL, 1150, 160
  aL3 butterbp aL, 2800, 300
  aRf butterbp aR, 690, 110
  aR2 butterbp aR, 1150, 160
  aR3 butterbp aR, 2800, 300
  aLo = (aLf + aL2 * 0.6 + aL3 * 0.45) * kenv * p5
  aRo = (aRf + aR2 * 0.6 + aR3 * 0.45) * kenv * p5
  gaMusL += aLo
  gaMusR += aRo
  gaRevL += aLo * 0.6
  gaRevR += aRo * 0.6
endin

; Bass: note, level, brightness 0..1.
instr Bass
  icps = cpsmidinn(p4)
  kenv linsegr 0, 0.004, 1, p3 * 0.7, 0.75, 0.04, 0
  kcut expseg 500 + 1500 * p6, 0.16, 220 + 160 * p6, 2, 200
  a0 oscili 0.7, icps
  a1 vco2 0.4, icps * cent(5)
  a2 vco2 0.4, icps * cent(-5)
  af zdf_ladder a1 + a2, kcut, 2.2
  asig = tanh((a0 + af * 0.9) * 1.3) * 0.75 * kenv * p5
  gaBass += asig
endin

; Long bass: note, level, note to glide from.
instr Sub
  kcps expseg cpsmidinn(p6), 0.09, cpsmidinn(p4), 10, cpsmidinn(p4)
  kenv linsegr 0, 0.02, 1, 0.12, 0
  a0 oscili 0.8, kcps
  a1 vco2 0.3, kcps
  klfo lfo 0.5, 4, 1
  kcut = 260 + 500 * (0.5 + klfo)
  af zdf_ladder a1, kcut, 3
  gaBass += tanh((a0 + af) * 1.2) * 0.75 * kenv * p5
endin

; Kick: level.
instr Kick
  kcps expseg 310, 0.022, 118, 0.075, 52, 1, 47
  kenv expseg 1, 0.22, 0.02, 0.08, 0.0005
  asig oscili 1, kcps
  an rand 1
  kclick linseg 1, 0.006, 0, 1, 0
  ac butterhp an * kclick, 1800
  asig = tanh(asig * 1.8) * kenv + ac * 0.35
  ToDrums asig * p4, 0.5, 0.015
endin

; What the kick does to the others: down, hold, back.
instr Duck
  kval linseg 1, 0.008, p4, 0.06, p4, 0.27, 1
  gkDuck = kval
endin

; Snare: level. Noise in two bands, two pre-hits of a clap, a tone.
instr Snare
  an rand 1
  kc linseg 0, 0.001, 0.5, 0.009, 0.05, 0.001, 0.6, 0.010, 0.08, 0.001, 1, 0.03, 0.5, 0.16, 0, 1, 0
  kn expseg 1, 0.19, 0.001, 1, 0.0005
  a1 butterbp an, 1750, 1300
  a2 butterhp an, 5200
  kt expseg 1, 0.11, 0.001, 1, 0.0005
  kcps expseg 260, 0.03, 185, 1, 180
  at oscili 0.7, kcps
  asig = (a1 * 0.8 * kc + a2 * 0.4 * kn + at * kt) * p4
  ToDrums asig, 0.52, 0.16
endin

; Hat: level, length of the sound, pan.
instr Hat
  an rand 1
  a1 vco2 0.3, 4030, 10
  a2 vco2 0.3, 5617, 10
  asig = an * 0.7 + a1 * a2 * 3
  asig butterhp asig, 7000
  asig butterhp asig, 7000
  kenv expseg 1, p5, 0.002, 0.05, 0.0005
  ToDrums asig * kenv * p4, p6, 0.03
endin

; Tick: level, pan: a small wooden sound before the drums come.
instr Tick
  kenv expseg 1, 0.03, 0.001, 1, 0.0005
  a1 oscili 0.6, 2350
  a2 oscili 0.4, 3790
  ToDrums (a1 + a2) * kenv * p4, p5, 0.25
endin

; Tom: note, level, pan.
instr Tom
  kcps expseg cpsmidinn(p4) * 1.8, 0.05, cpsmidinn(p4), 1, cpsmidinn(p4) * 0.9
  kenv expseg 1, 0.4, 0.001, 1, 0.0005
  a1 oscili 1, kcps
  an pinker
  kn expseg 0.4, 0.05, 0.001, 1, 0.0005
  ToDrums (tanh(a1 * 1.4) * kenv + an * kn) * p5, p6, 0.2
endin

; Crash: level, length.
instr Crash
  an rand 1
  an2 rand 1
  kenv expseg 1, p5, 0.001
  aL butterhp an, 4500
  aR butterhp an2, 4700
  aL *= kenv * p4
  aR *= kenv * p4
  gaFxL += aL
  gaFxR += aR
  gaRevL += aL * 0.3
  gaRevR += aR * 0.3
endin

; Lead: note, level, note to glide from.
instr Lead
  kcps expseg cpsmidinn(p6), 0.045, cpsmidinn(p4), 20, cpsmidinn(p4)
  kvd linseg 0, 0.25, 0, 0.3, 1, 1, 1
  klfo lfo 0.006, 5.4
  kcps = kcps * (1 + klfo * kvd)
  kenv linsegr 0, 0.012, 1, 0.2, 0.8, 0.12, 0
  iph random 0, 1
  iph2 random 0, 1
  a1 vco2 0.3, kcps * cent(8), 16, 0.5, iph
  a2 vco2 0.3, kcps * cent(-8), 16, 0.5, iph2
  a3 vco2 0.22, kcps, 2, 0.38
  a4 oscili 0.25, kcps * 0.5
  kcut expseg 3200, 0.03, 7600, 0.4, 5200, 5, 4600
  aL zdf_ladder a1 + a3 * 0.7 + a4, kcut, 1.2
  aR zdf_ladder a2 + a3 * 0.7 + a4, kcut, 1.2
  aL *= kenv * p5
  aR *= kenv * p5
  gaMusL += aL
  gaMusR += aR
  gaDelL += aL * 0.3
  gaDelR += aR * 0.3
  gaRevL += aL * 0.22
  gaRevR += aR * 0.22
endin

; Soft lead (a reed): note, level, pan.
instr Reed
  kvd linseg 0, 0.35, 0, 0.4, 1, 1, 1
  klfo lfo 0.005, 4.8
  kcps = cpsmidinn(p4) * (1 + klfo * kvd)
  kenv linsegr 0, 0.05, 1, 0.3, 0.85, 0.18, 0
  kpw linseg 0.42, p3, 0.3
  a1 vco2 0.4, kcps, 2, 0.35
  a2 oscili 0.3, kcps
  asig zdf_ladder a1 + a2, 2600 + 900 * kenv, 0.9
  ToMusic asig * kenv * p5, p6, 0.3, 0.35
endin

; Arpeggio: note, level, pan, cutoff.
instr Arp
  icps = cpsmidinn(p4)
  kenv expseg 1, p3, 0.12, 0.03, 0.001
  katt linseg 0, 0.002, 1, 1, 1
  kcut expseg p7, 0.11, p7 * 0.2 + 120, 1, p7 * 0.15 + 100
  iph random 0, 1
  a1 vco2 0.4, icps * cent(3), 16, 0.5, iph
  a2 vco2 0.3, icps * cent(-3), 2, 0.36
  asig zdf_ladder a1 + a2, kcut, 3.5
  ToMusic asig * kenv * katt * p5, p6, 0.28, 0.12
endin

; Riser: level at its top.
instr Riser
  kenv expseg 0.02, p3 * 0.96, 1, p3 * 0.04, 0.01
  kcf expseg 300, p3, 7500
  an1 rand 1
  an2 rand 1
  aL butterbp an1, kcf, kcf * 0.5
  aR butterbp an2, kcf * 1.06, kcf * 0.5
  ktone expseg 110, p3, 880
  a1 vco2 0.12, ktone
  a1 butterlp a1, kcf
  gaFxL += (aL + a1) * kenv * p4
  gaFxR += (aR + a1) * kenv * p4
  gaRevL += aL * kenv * p4 * 0.3
  gaRevR += aR * kenv * p4 * 0.3
endin

; Impact: level. A deep fall, a burst of air.
instr Impact
  kcps expseg 130, 0.5, 38, 2.5, 30
  kenv expseg 1, 2.6, 0.002, 1, 0.0005
  a1 oscili 0.9, kcps
  an1 pinker
  an2 pinker
  kn expseg 1, 1.8, 0.002, 2, 0.0005
  aL butterlp an1, 3800
  aR butterlp an2, 3600
  gaFxL += (tanh(a1 * 1.5) * kenv + aL * kn * 0.8) * p4
  gaFxR += (tanh(a1 * 1.5) * kenv + aR * kn * 0.8) * p4
  gaRevL += aL * kn * p4 * 0.7
  gaRevR += aR * kn * p4 * 0.7
endin

; Everything together: ping-pong delay of a dotted eighth, reverb, the pump of the kick.
instr Mix
  abackL init 0
  abackR init 0
  aindL = gaDelL + abackR * 0.42
  aindR = gaDelR + abackL * 0.42
  adl delay aindL, 0.375
  adr delay aindR, 0.375
  abackL butterlp adl, 4800
  abackL butterhp abackL, 250
  abackR butterlp adr, 4800
  abackR butterhp abackR, 250
  arinL butterhp gaRevL + abackL * 0.15, 180
  arinR butterhp gaRevR + abackR * 0.15, 180
  arvL, arvR reverbsc arinL, arinR, 0.88, 9000
  kfx = 0.5 + 0.5 * gkDuck
  aduck interp gkDuck
  afx interp kfx
  amusL = gaMusL * 1.25 * aduck
  amusR = gaMusR * 1.25 * aduck
  ; Low notes stand in the middle: what is below 120 Hz of the music is made mono.
  alowL butterlp amusL, 120
  alowR butterlp amusR, 120
  amid = (alowL + alowR) * 0.5
  amusL = amusL - alowL + amid
  amusR = amusR - alowR + amid
  aL = gaDrumL * 0.9 + gaBass * aduck + amusL + (gaFxL + abackL + arvL * 0.8) * afx
  aR = gaDrumR * 0.9 + gaBass * aduck + amusR + (gaFxR + abackR + arvR * 0.8) * afx
  outs aL * 0.5, aR * 0.5
  gaDrumL = 0
  gaDrumR = 0
  gaBass = 0
  gaMusL = 0
  gaMusR = 0
  gaFxL = 0
  gaFxR = 0
  gaDelL = 0
  gaDelR = 0
  gaRevL = 0
  gaRevR = 0
endin
