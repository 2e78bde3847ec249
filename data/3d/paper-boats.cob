# paper-boats: made by art/build.sh, do not edit
Name paper-boats
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 421
-10.5323 -28.8573 0.32
-9.6677 -28.5427 0.32
-10.2759 -28.9769 0.18
-9.7873 -28.799 0.18
-10.4127 -28.601 0.18
-9.9241 -28.4231 0.18
-10.2879 -28.7684 -0.06
-9.9121 -28.6316 -0.06
-10.1 -28.7 0.48
-10.2691 -28.7616 0.14
-9.9309 -28.6384 0.14
-10.0829 -28.747 0.6
-10.1171 -28.653 0.6
-10.0999 -28.7 0.14
-9.9684 -28.6521 0.3
-10.0999 -28.7 0.52
-10.1 -28.6999 0.14
-10.1049 -28.5601 0.3
-10.1 -28.6999 0.52
-10.1001 -28.7 0.14
-10.2346 -28.6614 0.3
-10.1001 -28.7 0.52
-10.1001 -28.7001 0.14
-10.1783 -28.8161 0.3
-10.1001 -28.7001 0.52
-10.0999 -28.7001 0.14
-10.0138 -28.8103 0.3
-10.0999 -28.7001 0.52
-11.4573 -27.3323 0.32
-11.1427 -26.4677 0.32
-11.201 -27.2127 0.18
-11.0231 -26.7241 0.18
-11.5769 -27.0759 0.18
-11.399 -26.5873 0.18
-11.3684 -27.0879 -0.06
-11.2316 -26.7121 -0.06
-11.3 -26.9 0.48
-11.3616 -27.0691 0.14
-11.2384 -26.7309 0.14
-11.253 -26.9171 0.6
-11.347 -26.8829 0.6
-11.3 -26.8999 0.14
-11.2521 -26.7684 0.3
-11.3 -26.8999 0.52
-11.3001 -26.8999 0.14
-11.4103 -26.8138 0.3
-11.3001 -26.8999 0.52
-11.3001 -26.9001 0.14
-11.4161 -26.9783 0.3
-11.3001 -26.9001 0.52
-11.3 -26.9001 0.14
-11.2614 -27.0346 0.3
-11.3 -26.9001 0.52
-11.2999 -26.9 0.14
-11.1601 -26.9049 0.3
-11.2999 -26.9 0.52
-8.6476 -26.1957 0.32
-9.3524 -25.6043 0.32
-8.6723 -25.9139 0.18
-9.0706 -25.5797 0.18
-8.9294 -26.2203 0.18
-9.3277 -25.8861 0.18
-8.8468 -26.0286 -0.06
-9.1532 -25.7714 -0.06
-9 -25.9 0.48
-8.8621 -26.0157 0.14
-9.1379 -25.7843 0.14
-8.9679 -25.8617 0.6
-9.0321 -25.9383 0.6
-9.0001 -25.8999 0.14
-9.1072 -25.81 0.3
-9.0001 -25.8999 0.52
-9.0001 -25.9001 0.14
-9.1187 -25.9742 0.3
-9.0001 -25.9001 0.52
-9 -25.9001 0.14
-8.9661 -26.0358 0.3
-9 -25.9001 0.52
-8.9999 -25.9 0.14
-8.8603 -25.9098 0.3
-8.9999 -25.9 0.52
-9 -25.8999 0.14
-8.9476 -25.7702 0.3
-9 -25.8999 0.52
-10.653 -24.2799 0.32
-9.747 -24.1201 0.32
-10.4213 -24.4421 0.18
-9.9092 -24.3518 0.18
-10.4908 -24.0482 0.18
-9.9787 -23.9579 0.18
-10.397 -24.2347 -0.06
-10.003 -24.1653 -0.06
-10.2 -24.2 0.48
-10.3773 -24.2313 0.14
-10.0227 -24.1687 0.14
-10.1913 -24.2492 0.6
-10.2087 -24.1508 0.6
-10.1999 -24.2 0.14
-10.0621 -24.1757 0.3
-10.1999 -24.2 0.52
-10.2 -24.1999 0.14
-10.1805 -24.0614 0.3
-10.2 -24.1999 0.52
-10.2001 -24.2 0.14
-10.3258 -24.1386 0.3
-10.2001 -24.2 0.52
-10.2001 -24.2001 0.14
-10.2973 -24.3007 0.3
-10.2001 -24.2001 0.52
-10.2 -24.2001 0.14
-10.1343 -24.3236 0.3
-10.2 -24.2001 0.52
-7.6201 -24.653 0.32
-7.7799 -23.747 0.32
-7.4579 -24.4213 0.18
-7.5482 -23.9092 0.18
-7.8518 -24.4908 0.18
-7.9421 -23.9787 0.18
-7.6653 -24.397 -0.06
-7.7347 -24.003 -0.06
-7.7 -24.2 0.48
-7.6687 -24.3773 0.14
-7.7313 -24.0227 0.14
-7.6508 -24.1913 0.6
-7.7492 -24.2087 0.6
-7.7 -24.1999 0.14
-7.7243 -24.0621 0.3
-7.7 -24.1999 0.52
-7.7001 -24.2 0.14
-7.8386 -24.1805 0.3
-7.7001 -24.2 0.52
-7.7 -24.2001 0.14
-7.7614 -24.3258 0.3
-7.7 -24.2001 0.52
-7.6999 -24.2001 0.14
-7.5993 -24.2973 0.3
-7.6999 -24.2001 0.52
-7.6999 -24.2 0.14
-7.5764 -24.1343 0.3
-7.6999 -24.2 0.52
-8.6957 -22.6524 0.32
-8.1043 -21.9476 0.32
-8.4139 -22.6277 0.18
-8.0797 -22.2294 0.18
-8.7203 -22.3706 0.18
-8.3861 -21.9723 0.18
-8.5286 -22.4532 -0.06
-8.2714 -22.1468 -0.06
-8.4 -22.3 0.48
-8.5157 -22.4379 0.14
-8.2843 -22.1621 0.14
-8.3617 -22.3321 0.6
-8.4383 -22.2679 0.6
-8.3999 -22.2999 0.14
-8.31 -22.1928 0.3
-8.3999 -22.2999 0.52
-8.4001 -22.2999 0.14
-8.4742 -22.1813 0.3
-8.4001 -22.2999 0.52
-8.4001 -22.3 0.14
-8.5358 -22.3339 0.3
-8.4001 -22.3 0.52
-8.4 -22.3001 0.14
-8.4098 -22.4397 0.3
-8.4 -22.3001 0.52
-8.3999 -22.3 0.14
-8.2702 -22.3524 0.3
-8.3999 -22.3 0.52
-11.67 -30.9984 0.32
-12.13 -30.2016 0.32
-11.5968 -30.7252 0.18
-11.8568 -30.2748 0.18
-11.9432 -30.9252 0.18
-12.2032 -30.4748 0.18
-11.8 -30.7732 -0.06
-12 -30.4268 -0.06
-11.9 -30.6 0.48
-11.81 -30.7559 0.14
-11.99 -30.4441 0.14
-11.8567 -30.575 0.6
-11.9433 -30.625 0.6
-11.9001 -30.5999 0.14
-11.97 -30.4788 0.3
-11.9001 -30.5999 0.52
-11.9001 -30.6 0.14
-12.0369 -30.6291 0.3
-11.9001 -30.6 0.52
-11.9 -30.6001 0.14
-11.9146 -30.7392 0.3
-11.9 -30.6001 0.52
-11.8999 -30.6 0.14
-11.7721 -30.6569 0.3
-11.8999 -30.6 0.52
-11.8999 -30.5999 0.14
-11.8063 -30.496 0.3
-11.8999 -30.5999 0.52
-9.1677 -31.4573 0.32
-10.0323 -31.1427 0.32
-9.2873 -31.201 0.18
-9.7759 -31.0231 0.18
-9.4241 -31.5769 0.18
-9.9127 -31.399 0.18
-9.4121 -31.3684 -0.06
-9.7879 -31.2316 -0.06
-9.6 -31.3 0.48
-9.4309 -31.3616 0.14
-9.7691 -31.2384 0.14
-9.5829 -31.253 0.6
-9.6171 -31.347 0.6
-9.6001 -31.3 0.14
-9.7316 -31.2521 0.3
-9.6001 -31.3 0.52
-9.6001 -31.3001 0.14
-9.6862 -31.4103 0.3
-9.6001 -31.3001 0.52
-9.5999 -31.3001 0.14
-9.5217 -31.4161 0.3
-9.5999 -31.3001 0.52
-9.5999 -31.3 0.14
-9.4654 -31.2614 0.3
-9.5999 -31.3 0.52
-9.6 -31.2999 0.14
-9.5951 -31.1601 0.3
-9.6 -31.2999 0.52
-6.7984 -21.43 0.32
-6.0016 -20.97 0.32
-6.5252 -21.5032 0.18
-6.0748 -21.2432 0.18
-6.7252 -21.1568 0.18
-6.2748 -20.8968 0.18
-6.5732 -21.3 -0.06
-6.2268 -21.1 -0.06
-6.4 -21.2 0.48
-6.5559 -21.29 0.14
-6.2441 -21.11 0.14
-6.375 -21.2433 0.6
-6.425 -21.1567 0.6
-6.3999 -21.1999 0.14
-6.2788 -21.13 0.3
-6.3999 -21.1999 0.52
-6.4 -21.1999 0.14
-6.4291 -21.0631 0.3
-6.4 -21.1999 0.52
-6.4001 -21.2 0.14
-6.5392 -21.1854 0.3
-6.4001 -21.2 0.52
-6.4 -21.2001 0.14
-6.4569 -21.3279 0.3
-6.4 -21.2001 0.52
-6.3999 -21.2001 0.14
-6.296 -21.2937 0.3
-6.3999 -21.2001 0.52
-0.2799 -28.053 0.32
-0.1201 -27.147 0.32
-0.0482 -27.8908 0.18
0.0421 -27.3787 0.18
-0.4421 -27.8213 0.18
-0.3518 -27.3092 0.18
-0.2347 -27.797 -0.06
-0.1653 -27.403 -0.06
-0.2 -27.6 0.48
-0.2313 -27.7773 0.14
-0.1687 -27.4227 0.14
-0.1508 -27.6087 0.6
-0.2492 -27.5913 0.6
-0.2 -27.5999 0.14
-0.1757 -27.4621 0.3
-0.2 -27.5999 0.52
-0.2001 -27.6 0.14
-0.3236 -27.5343 0.3
-0.2001 -27.6 0.52
-0.2001 -27.6001 0.14
-0.3007 -27.6973 0.3
-0.2001 -27.6001 0.52
-0.2 -27.6001 0.14
-0.1386 -27.7258 0.3
-0.2 -27.6001 0.52
-0.1999 -27.6 0.14
-0.0614 -27.5805 0.3
-0.1999 -27.6 0.52
1.1677 -24.9573 0.32
2.0323 -24.6427 0.32
1.4241 -25.0769 0.18
1.9127 -24.899 0.18
1.2873 -24.701 0.18
1.7759 -24.5231 0.18
1.4121 -24.8684 -0.06
1.7879 -24.7316 -0.06
1.6 -24.8 0.48
1.4309 -24.8616 0.14
1.7691 -24.7384 0.14
1.6171 -24.847 0.6
1.5829 -24.753 0.6
1.6001 -24.8 0.14
1.7316 -24.7521 0.3
1.6001 -24.8 0.52
1.6 -24.7999 0.14
1.5951 -24.6601 0.3
1.6 -24.7999 0.52
1.5999 -24.8 0.14
1.4654 -24.7614 0.3
1.5999 -24.8 0.52
1.5999 -24.8001 0.14
1.5217 -24.9161 0.3
1.5999 -24.8001 0.52
1.6001 -24.8001 0.14
1.6862 -24.9103 0.3
1.6001 -24.8001 0.52
1.0957 -22.9524 0.32
0.5043 -22.2476 0.32
1.1203 -22.6706 0.18
0.7861 -22.2723 0.18
0.8139 -22.9277 0.18
0.4797 -22.5294 0.18
0.9286 -22.7532 -0.06
0.6714 -22.4468 -0.06
0.8 -22.6 0.48
0.9157 -22.7379 0.14
0.6843 -22.4621 0.14
0.8383 -22.5679 0.6
0.7617 -22.6321 0.6
0.7999 -22.5999 0.14
0.71 -22.4928 0.3
0.7999 -22.5999 0.52
0.7999 -22.6 0.14
0.6702 -22.6524 0.3
0.7999 -22.6 0.52
0.8 -22.6001 0.14
0.8098 -22.7397 0.3
0.8 -22.6001 0.52
0.8001 -22.6 0.14
0.9358 -22.6339 0.3
0.8001 -22.6 0.52
0.8001 -22.5999 0.14
0.8742 -22.4813 0.3
0.8001 -22.5999 0.52
2.67 -21.1984 0.32
3.13 -20.4016 0.32
2.9432 -21.1252 0.18
3.2032 -20.6748 0.18
2.5968 -20.9252 0.18
2.8568 -20.4748 0.18
2.8 -20.9732 -0.06
3 -20.6268 -0.06
2.9 -20.8 0.48
2.81 -20.9559 0.14
2.99 -20.6441 0.14
2.9433 -20.825 0.6
2.8567 -20.775 0.6
2.9 -20.7999 0.14
2.97 -20.6788 0.3
2.9 -20.7999 0.52
2.8999 -20.7999 0.14
2.8063 -20.696 0.3
2.8999 -20.7999 0.52
2.8999 -20.8 0.14
2.7721 -20.8569 0.3
2.8999 -20.8 0.52
2.9 -20.8001 0.14
2.9146 -20.9392 0.3
2.9 -20.8001 0.52
2.9001 -20.8 0.14
3.0369 -20.8291 0.3
2.9001 -20.8 0.52
-1.1016 -30.83 0.32
-1.8984 -30.37 0.32
-1.1748 -30.5568 0.18
-1.6252 -30.2968 0.18
-1.3748 -30.9032 0.18
-1.8252 -30.6432 0.18
-1.3268 -30.7 -0.06
-1.6732 -30.5 -0.06
-1.5 -30.6 0.48
-1.3441 -30.69 0.14
-1.6559 -30.51 0.14
-1.475 -30.5567 0.6
-1.525 -30.6433 0.6
-1.5001 -30.5999 0.14
-1.6212 -30.53 0.3
-1.5001 -30.5999 0.52
-1.5001 -30.6001 0.14
-1.604 -30.6937 0.3
-1.5001 -30.6001 0.52
-1.5 -30.6001 0.14
-1.4431 -30.7279 0.3
-1.5 -30.6001 0.52
-1.4999 -30.6 0.14
-1.3608 -30.5854 0.3
-1.4999 -30.6 0.52
-1.5 -30.5999 0.14
-1.4709 -30.4631 0.3
-1.5 -30.5999 0.52
-14.5524 -28.9957 0.32
-13.8476 -28.4043 0.32
-14.2706 -29.0203 0.18
-13.8723 -28.6861 0.18
-14.5277 -28.7139 0.18
-14.1294 -28.3797 0.18
-14.3532 -28.8286 -0.06
-14.0468 -28.5714 -0.06
-14.2 -28.7 0.48
-14.3379 -28.8157 0.14
-14.0621 -28.5843 0.14
-14.1679 -28.7383 0.6
-14.2321 -28.6617 0.6
-14.1999 -28.6999 0.14
-14.0928 -28.61 0.3
-14.1999 -28.6999 0.52
-14.2 -28.6999 0.14
-14.2524 -28.5702 0.3
-14.2 -28.6999 0.52
-14.2001 -28.7 0.14
-14.3397 -28.7098 0.3
-14.2001 -28.7 0.52
-14.2 -28.7001 0.14
-14.2339 -28.8358 0.3
-14.2 -28.7001 0.52
-14.1999 -28.7001 0.14
-14.0813 -28.7742 0.3
-14.1999 -28.7001 0.52
0 0 47.0755
Texture Vertices 1
0 0
Faces 570
Face verts 3 flags 0 mat 0
<0,0> <2,0> <6,0>
Face verts 3 flags 0 mat 0
<2,0> <7,0> <6,0>
Face verts 3 flags 0 mat 0
<2,0> <3,0> <7,0>
Face verts 3 flags 0 mat 0
<3,0> <1,0> <7,0>
Face verts 3 flags 0 mat 0
<0,0> <6,0> <4,0>
Face verts 3 flags 0 mat 0
<4,0> <6,0> <7,0>
Face verts 3 flags 0 mat 0
<4,0> <7,0> <5,0>
Face verts 3 flags 0 mat 0
<5,0> <7,0> <1,0>
Face verts 3 flags 0 mat 0
<0,0> <6,0> <2,0>
Face verts 3 flags 0 mat 0
<2,0> <6,0> <7,0>
Face verts 3 flags 0 mat 0
<2,0> <7,0> <3,0>
Face verts 3 flags 0 mat 0
<3,0> <7,0> <1,0>
Face verts 3 flags 0 mat 0
<0,0> <4,0> <6,0>
Face verts 3 flags 0 mat 0
<4,0> <7,0> <6,0>
Face verts 3 flags 0 mat 0
<4,0> <5,0> <7,0>
Face verts 3 flags 0 mat 0
<5,0> <1,0> <7,0>
Face verts 3 flags 0 mat 0
<9,0> <11,0> <10,0>
Face verts 3 flags 0 mat 0
<10,0> <12,0> <9,0>
Face verts 3 flags 0 mat 1
<13,0> <17,0> <16,0>
Face verts 3 flags 0 mat 1
<13,0> <14,0> <17,0>
Face verts 3 flags 0 mat 1
<14,0> <15,0> <17,0>
Face verts 3 flags 0 mat 1
<17,0> <15,0> <18,0>
Face verts 3 flags 0 mat 1
<16,0> <17,0> <19,0>
Face verts 3 flags 0 mat 1
<19,0> <17,0> <20,0>
Face verts 3 flags 0 mat 1
<17,0> <21,0> <20,0>
Face verts 3 flags 0 mat 1
<17,0> <18,0> <21,0>
Face verts 3 flags 0 mat 1
<19,0> <23,0> <22,0>
Face verts 3 flags 0 mat 1
<19,0> <20,0> <23,0>
Face verts 3 flags 0 mat 1
<20,0> <21,0> <23,0>
Face verts 3 flags 0 mat 1
<23,0> <21,0> <24,0>
Face verts 3 flags 0 mat 1
<22,0> <23,0> <25,0>
Face verts 3 flags 0 mat 1
<25,0> <23,0> <26,0>
Face verts 3 flags 0 mat 1
<23,0> <27,0> <26,0>
Face verts 3 flags 0 mat 1
<23,0> <24,0> <27,0>
Face verts 3 flags 0 mat 1
<25,0> <14,0> <13,0>
Face verts 3 flags 0 mat 1
<25,0> <26,0> <14,0>
Face verts 3 flags 0 mat 1
<26,0> <27,0> <14,0>
Face verts 3 flags 0 mat 1
<14,0> <27,0> <15,0>
Face verts 3 flags 0 mat 0
<28,0> <30,0> <34,0>
Face verts 3 flags 0 mat 0
<30,0> <35,0> <34,0>
Face verts 3 flags 0 mat 0
<30,0> <31,0> <35,0>
Face verts 3 flags 0 mat 0
<31,0> <29,0> <35,0>
Face verts 3 flags 0 mat 0
<28,0> <34,0> <32,0>
Face verts 3 flags 0 mat 0
<32,0> <34,0> <35,0>
Face verts 3 flags 0 mat 0
<32,0> <35,0> <33,0>
Face verts 3 flags 0 mat 0
<33,0> <35,0> <29,0>
Face verts 3 flags 0 mat 0
<28,0> <34,0> <30,0>
Face verts 3 flags 0 mat 0
<30,0> <34,0> <35,0>
Face verts 3 flags 0 mat 0
<30,0> <35,0> <31,0>
Face verts 3 flags 0 mat 0
<31,0> <35,0> <29,0>
Face verts 3 flags 0 mat 0
<28,0> <32,0> <34,0>
Face verts 3 flags 0 mat 0
<32,0> <35,0> <34,0>
Face verts 3 flags 0 mat 0
<32,0> <33,0> <35,0>
Face verts 3 flags 0 mat 0
<33,0> <29,0> <35,0>
Face verts 3 flags 0 mat 0
<37,0> <39,0> <38,0>
Face verts 3 flags 0 mat 0
<38,0> <40,0> <37,0>
Face verts 3 flags 0 mat 1
<41,0> <45,0> <44,0>
Face verts 3 flags 0 mat 1
<41,0> <42,0> <45,0>
Face verts 3 flags 0 mat 1
<42,0> <43,0> <45,0>
Face verts 3 flags 0 mat 1
<45,0> <43,0> <46,0>
Face verts 3 flags 0 mat 1
<44,0> <45,0> <47,0>
Face verts 3 flags 0 mat 1
<47,0> <45,0> <48,0>
Face verts 3 flags 0 mat 1
<45,0> <49,0> <48,0>
Face verts 3 flags 0 mat 1
<45,0> <46,0> <49,0>
Face verts 3 flags 0 mat 1
<47,0> <51,0> <50,0>
Face verts 3 flags 0 mat 1
<47,0> <48,0> <51,0>
Face verts 3 flags 0 mat 1
<48,0> <49,0> <51,0>
Face verts 3 flags 0 mat 1
<51,0> <49,0> <52,0>
Face verts 3 flags 0 mat 1
<50,0> <51,0> <53,0>
Face verts 3 flags 0 mat 1
<53,0> <51,0> <54,0>
Face verts 3 flags 0 mat 1
<51,0> <55,0> <54,0>
Face verts 3 flags 0 mat 1
<51,0> <52,0> <55,0>
Face verts 3 flags 0 mat 1
<53,0> <42,0> <41,0>
Face verts 3 flags 0 mat 1
<53,0> <54,0> <42,0>
Face verts 3 flags 0 mat 1
<54,0> <55,0> <42,0>
Face verts 3 flags 0 mat 1
<42,0> <55,0> <43,0>
Face verts 3 flags 0 mat 0
<56,0> <58,0> <62,0>
Face verts 3 flags 0 mat 0
<58,0> <63,0> <62,0>
Face verts 3 flags 0 mat 0
<58,0> <59,0> <63,0>
Face verts 3 flags 0 mat 0
<59,0> <57,0> <63,0>
Face verts 3 flags 0 mat 0
<56,0> <62,0> <60,0>
Face verts 3 flags 0 mat 0
<60,0> <62,0> <63,0>
Face verts 3 flags 0 mat 0
<60,0> <63,0> <61,0>
Face verts 3 flags 0 mat 0
<61,0> <63,0> <57,0>
Face verts 3 flags 0 mat 0
<56,0> <62,0> <58,0>
Face verts 3 flags 0 mat 0
<58,0> <62,0> <63,0>
Face verts 3 flags 0 mat 0
<58,0> <63,0> <59,0>
Face verts 3 flags 0 mat 0
<59,0> <63,0> <57,0>
Face verts 3 flags 0 mat 0
<56,0> <60,0> <62,0>
Face verts 3 flags 0 mat 0
<60,0> <63,0> <62,0>
Face verts 3 flags 0 mat 0
<60,0> <61,0> <63,0>
Face verts 3 flags 0 mat 0
<61,0> <57,0> <63,0>
Face verts 3 flags 0 mat 0
<65,0> <67,0> <66,0>
Face verts 3 flags 0 mat 0
<66,0> <68,0> <65,0>
Face verts 3 flags 0 mat 1
<69,0> <73,0> <72,0>
Face verts 3 flags 0 mat 1
<69,0> <70,0> <73,0>
Face verts 3 flags 0 mat 1
<70,0> <71,0> <73,0>
Face verts 3 flags 0 mat 1
<73,0> <71,0> <74,0>
Face verts 3 flags 0 mat 1
<72,0> <73,0> <75,0>
Face verts 3 flags 0 mat 1
<75,0> <73,0> <76,0>
Face verts 3 flags 0 mat 1
<73,0> <77,0> <76,0>
Face verts 3 flags 0 mat 1
<73,0> <74,0> <77,0>
Face verts 3 flags 0 mat 1
<75,0> <79,0> <78,0>
Face verts 3 flags 0 mat 1
<75,0> <76,0> <79,0>
Face verts 3 flags 0 mat 1
<76,0> <77,0> <79,0>
Face verts 3 flags 0 mat 1
<79,0> <77,0> <80,0>
Face verts 3 flags 0 mat 1
<78,0> <79,0> <81,0>
Face verts 3 flags 0 mat 1
<81,0> <79,0> <82,0>
Face verts 3 flags 0 mat 1
<79,0> <83,0> <82,0>
Face verts 3 flags 0 mat 1
<79,0> <80,0> <83,0>
Face verts 3 flags 0 mat 1
<81,0> <70,0> <69,0>
Face verts 3 flags 0 mat 1
<81,0> <82,0> <70,0>
Face verts 3 flags 0 mat 1
<82,0> <83,0> <70,0>
Face verts 3 flags 0 mat 1
<70,0> <83,0> <71,0>
Face verts 3 flags 0 mat 0
<84,0> <86,0> <90,0>
Face verts 3 flags 0 mat 0
<86,0> <91,0> <90,0>
Face verts 3 flags 0 mat 0
<86,0> <87,0> <91,0>
Face verts 3 flags 0 mat 0
<87,0> <85,0> <91,0>
Face verts 3 flags 0 mat 0
<84,0> <90,0> <88,0>
Face verts 3 flags 0 mat 0
<88,0> <90,0> <91,0>
Face verts 3 flags 0 mat 0
<88,0> <91,0> <89,0>
Face verts 3 flags 0 mat 0
<89,0> <91,0> <85,0>
Face verts 3 flags 0 mat 0
<84,0> <90,0> <86,0>
Face verts 3 flags 0 mat 0
<86,0> <90,0> <91,0>
Face verts 3 flags 0 mat 0
<86,0> <91,0> <87,0>
Face verts 3 flags 0 mat 0
<87,0> <91,0> <85,0>
Face verts 3 flags 0 mat 0
<84,0> <88,0> <90,0>
Face verts 3 flags 0 mat 0
<88,0> <91,0> <90,0>
Face verts 3 flags 0 mat 0
<88,0> <89,0> <91,0>
Face verts 3 flags 0 mat 0
<89,0> <85,0> <91,0>
Face verts 3 flags 0 mat 0
<93,0> <95,0> <94,0>
Face verts 3 flags 0 mat 0
<94,0> <96,0> <93,0>
Face verts 3 flags 0 mat 1
<97,0> <101,0> <100,0>
Face verts 3 flags 0 mat 1
<97,0> <98,0> <101,0>
Face verts 3 flags 0 mat 1
<98,0> <99,0> <101,0>
Face verts 3 flags 0 mat 1
<101,0> <99,0> <102,0>
Face verts 3 flags 0 mat 1
<100,0> <101,0> <103,0>
Face verts 3 flags 0 mat 1
<103,0> <101,0> <104,0>
Face verts 3 flags 0 mat 1
<101,0> <105,0> <104,0>
Face verts 3 flags 0 mat 1
<101,0> <102,0> <105,0>
Face verts 3 flags 0 mat 1
<103,0> <107,0> <106,0>
Face verts 3 flags 0 mat 1
<103,0> <104,0> <107,0>
Face verts 3 flags 0 mat 1
<104,0> <105,0> <107,0>
Face verts 3 flags 0 mat 1
<107,0> <105,0> <108,0>
Face verts 3 flags 0 mat 1
<106,0> <107,0> <109,0>
Face verts 3 flags 0 mat 1
<109,0> <107,0> <110,0>
Face verts 3 flags 0 mat 1
<107,0> <111,0> <110,0>
Face verts 3 flags 0 mat 1
<107,0> <108,0> <111,0>
Face verts 3 flags 0 mat 1
<109,0> <98,0> <97,0>
Face verts 3 flags 0 mat 1
<109,0> <110,0> <98,0>
Face verts 3 flags 0 mat 1
<110,0> <111,0> <98,0>
Face verts 3 flags 0 mat 1
<98,0> <111,0> <99,0>
Face verts 3 flags 0 mat 0
<112,0> <114,0> <118,0>
Face verts 3 flags 0 mat 0
<114,0> <119,0> <118,0>
Face verts 3 flags 0 mat 0
<114,0> <115,0> <119,0>
Face verts 3 flags 0 mat 0
<115,0> <113,0> <119,0>
Face verts 3 flags 0 mat 0
<112,0> <118,0> <116,0>
Face verts 3 flags 0 mat 0
<116,0> <118,0> <119,0>
Face verts 3 flags 0 mat 0
<116,0> <119,0> <117,0>
Face verts 3 flags 0 mat 0
<117,0> <119,0> <113,0>
Face verts 3 flags 0 mat 0
<112,0> <118,0> <114,0>
Face verts 3 flags 0 mat 0
<114,0> <118,0> <119,0>
Face verts 3 flags 0 mat 0
<114,0> <119,0> <115,0>
Face verts 3 flags 0 mat 0
<115,0> <119,0> <113,0>
Face verts 3 flags 0 mat 0
<112,0> <116,0> <118,0>
Face verts 3 flags 0 mat 0
<116,0> <119,0> <118,0>
Face verts 3 flags 0 mat 0
<116,0> <117,0> <119,0>
Face verts 3 flags 0 mat 0
<117,0> <113,0> <119,0>
Face verts 3 flags 0 mat 0
<121,0> <123,0> <122,0>
Face verts 3 flags 0 mat 0
<122,0> <124,0> <121,0>
Face verts 3 flags 0 mat 1
<125,0> <129,0> <128,0>
Face verts 3 flags 0 mat 1
<125,0> <126,0> <129,0>
Face verts 3 flags 0 mat 1
<126,0> <127,0> <129,0>
Face verts 3 flags 0 mat 1
<129,0> <127,0> <130,0>
Face verts 3 flags 0 mat 1
<128,0> <129,0> <131,0>
Face verts 3 flags 0 mat 1
<131,0> <129,0> <132,0>
Face verts 3 flags 0 mat 1
<129,0> <133,0> <132,0>
Face verts 3 flags 0 mat 1
<129,0> <130,0> <133,0>
Face verts 3 flags 0 mat 1
<131,0> <135,0> <134,0>
Face verts 3 flags 0 mat 1
<131,0> <132,0> <135,0>
Face verts 3 flags 0 mat 1
<132,0> <133,0> <135,0>
Face verts 3 flags 0 mat 1
<135,0> <133,0> <136,0>
Face verts 3 flags 0 mat 1
<134,0> <135,0> <137,0>
Face verts 3 flags 0 mat 1
<137,0> <135,0> <138,0>
Face verts 3 flags 0 mat 1
<135,0> <139,0> <138,0>
Face verts 3 flags 0 mat 1
<135,0> <136,0> <139,0>
Face verts 3 flags 0 mat 1
<137,0> <126,0> <125,0>
Face verts 3 flags 0 mat 1
<137,0> <138,0> <126,0>
Face verts 3 flags 0 mat 1
<138,0> <139,0> <126,0>
Face verts 3 flags 0 mat 1
<126,0> <139,0> <127,0>
Face verts 3 flags 0 mat 0
<140,0> <142,0> <146,0>
Face verts 3 flags 0 mat 0
<142,0> <147,0> <146,0>
Face verts 3 flags 0 mat 0
<142,0> <143,0> <147,0>
Face verts 3 flags 0 mat 0
<143,0> <141,0> <147,0>
Face verts 3 flags 0 mat 0
<140,0> <146,0> <144,0>
Face verts 3 flags 0 mat 0
<144,0> <146,0> <147,0>
Face verts 3 flags 0 mat 0
<144,0> <147,0> <145,0>
Face verts 3 flags 0 mat 0
<145,0> <147,0> <141,0>
Face verts 3 flags 0 mat 0
<140,0> <146,0> <142,0>
Face verts 3 flags 0 mat 0
<142,0> <146,0> <147,0>
Face verts 3 flags 0 mat 0
<142,0> <147,0> <143,0>
Face verts 3 flags 0 mat 0
<143,0> <147,0> <141,0>
Face verts 3 flags 0 mat 0
<140,0> <144,0> <146,0>
Face verts 3 flags 0 mat 0
<144,0> <147,0> <146,0>
Face verts 3 flags 0 mat 0
<144,0> <145,0> <147,0>
Face verts 3 flags 0 mat 0
<145,0> <141,0> <147,0>
Face verts 3 flags 0 mat 0
<149,0> <151,0> <150,0>
Face verts 3 flags 0 mat 0
<150,0> <152,0> <149,0>
Face verts 3 flags 0 mat 1
<153,0> <157,0> <156,0>
Face verts 3 flags 0 mat 1
<153,0> <154,0> <157,0>
Face verts 3 flags 0 mat 1
<154,0> <155,0> <157,0>
Face verts 3 flags 0 mat 1
<157,0> <155,0> <158,0>
Face verts 3 flags 0 mat 1
<156,0> <157,0> <159,0>
Face verts 3 flags 0 mat 1
<159,0> <157,0> <160,0>
Face verts 3 flags 0 mat 1
<157,0> <161,0> <160,0>
Face verts 3 flags 0 mat 1
<157,0> <158,0> <161,0>
Face verts 3 flags 0 mat 1
<159,0> <163,0> <162,0>
Face verts 3 flags 0 mat 1
<159,0> <160,0> <163,0>
Face verts 3 flags 0 mat 1
<160,0> <161,0> <163,0>
Face verts 3 flags 0 mat 1
<163,0> <161,0> <164,0>
Face verts 3 flags 0 mat 1
<162,0> <163,0> <165,0>
Face verts 3 flags 0 mat 1
<165,0> <163,0> <166,0>
Face verts 3 flags 0 mat 1
<163,0> <167,0> <166,0>
Face verts 3 flags 0 mat 1
<163,0> <164,0> <167,0>
Face verts 3 flags 0 mat 1
<165,0> <154,0> <153,0>
Face verts 3 flags 0 mat 1
<165,0> <166,0> <154,0>
Face verts 3 flags 0 mat 1
<166,0> <167,0> <154,0>
Face verts 3 flags 0 mat 1
<154,0> <167,0> <155,0>
Face verts 3 flags 0 mat 0
<168,0> <170,0> <174,0>
Face verts 3 flags 0 mat 0
<170,0> <175,0> <174,0>
Face verts 3 flags 0 mat 0
<170,0> <171,0> <175,0>
Face verts 3 flags 0 mat 0
<171,0> <169,0> <175,0>
Face verts 3 flags 0 mat 0
<168,0> <174,0> <172,0>
Face verts 3 flags 0 mat 0
<172,0> <174,0> <175,0>
Face verts 3 flags 0 mat 0
<172,0> <175,0> <173,0>
Face verts 3 flags 0 mat 0
<173,0> <175,0> <169,0>
Face verts 3 flags 0 mat 0
<168,0> <174,0> <170,0>
Face verts 3 flags 0 mat 0
<170,0> <174,0> <175,0>
Face verts 3 flags 0 mat 0
<170,0> <175,0> <171,0>
Face verts 3 flags 0 mat 0
<171,0> <175,0> <169,0>
Face verts 3 flags 0 mat 0
<168,0> <172,0> <174,0>
Face verts 3 flags 0 mat 0
<172,0> <175,0> <174,0>
Face verts 3 flags 0 mat 0
<172,0> <173,0> <175,0>
Face verts 3 flags 0 mat 0
<173,0> <169,0> <175,0>
Face verts 3 flags 0 mat 0
<177,0> <179,0> <178,0>
Face verts 3 flags 0 mat 0
<178,0> <180,0> <177,0>
Face verts 3 flags 0 mat 1
<181,0> <185,0> <184,0>
Face verts 3 flags 0 mat 1
<181,0> <182,0> <185,0>
Face verts 3 flags 0 mat 1
<182,0> <183,0> <185,0>
Face verts 3 flags 0 mat 1
<185,0> <183,0> <186,0>
Face verts 3 flags 0 mat 1
<184,0> <185,0> <187,0>
Face verts 3 flags 0 mat 1
<187,0> <185,0> <188,0>
Face verts 3 flags 0 mat 1
<185,0> <189,0> <188,0>
Face verts 3 flags 0 mat 1
<185,0> <186,0> <189,0>
Face verts 3 flags 0 mat 1
<187,0> <191,0> <190,0>
Face verts 3 flags 0 mat 1
<187,0> <188,0> <191,0>
Face verts 3 flags 0 mat 1
<188,0> <189,0> <191,0>
Face verts 3 flags 0 mat 1
<191,0> <189,0> <192,0>
Face verts 3 flags 0 mat 1
<190,0> <191,0> <193,0>
Face verts 3 flags 0 mat 1
<193,0> <191,0> <194,0>
Face verts 3 flags 0 mat 1
<191,0> <195,0> <194,0>
Face verts 3 flags 0 mat 1
<191,0> <192,0> <195,0>
Face verts 3 flags 0 mat 1
<193,0> <182,0> <181,0>
Face verts 3 flags 0 mat 1
<193,0> <194,0> <182,0>
Face verts 3 flags 0 mat 1
<194,0> <195,0> <182,0>
Face verts 3 flags 0 mat 1
<182,0> <195,0> <183,0>
Face verts 3 flags 0 mat 0
<196,0> <198,0> <202,0>
Face verts 3 flags 0 mat 0
<198,0> <203,0> <202,0>
Face verts 3 flags 0 mat 0
<198,0> <199,0> <203,0>
Face verts 3 flags 0 mat 0
<199,0> <197,0> <203,0>
Face verts 3 flags 0 mat 0
<196,0> <202,0> <200,0>
Face verts 3 flags 0 mat 0
<200,0> <202,0> <203,0>
Face verts 3 flags 0 mat 0
<200,0> <203,0> <201,0>
Face verts 3 flags 0 mat 0
<201,0> <203,0> <197,0>
Face verts 3 flags 0 mat 0
<196,0> <202,0> <198,0>
Face verts 3 flags 0 mat 0
<198,0> <202,0> <203,0>
Face verts 3 flags 0 mat 0
<198,0> <203,0> <199,0>
Face verts 3 flags 0 mat 0
<199,0> <203,0> <197,0>
Face verts 3 flags 0 mat 0
<196,0> <200,0> <202,0>
Face verts 3 flags 0 mat 0
<200,0> <203,0> <202,0>
Face verts 3 flags 0 mat 0
<200,0> <201,0> <203,0>
Face verts 3 flags 0 mat 0
<201,0> <197,0> <203,0>
Face verts 3 flags 0 mat 0
<205,0> <207,0> <206,0>
Face verts 3 flags 0 mat 0
<206,0> <208,0> <205,0>
Face verts 3 flags 0 mat 1
<209,0> <213,0> <212,0>
Face verts 3 flags 0 mat 1
<209,0> <210,0> <213,0>
Face verts 3 flags 0 mat 1
<210,0> <211,0> <213,0>
Face verts 3 flags 0 mat 1
<213,0> <211,0> <214,0>
Face verts 3 flags 0 mat 1
<212,0> <213,0> <215,0>
Face verts 3 flags 0 mat 1
<215,0> <213,0> <216,0>
Face verts 3 flags 0 mat 1
<213,0> <217,0> <216,0>
Face verts 3 flags 0 mat 1
<213,0> <214,0> <217,0>
Face verts 3 flags 0 mat 1
<215,0> <219,0> <218,0>
Face verts 3 flags 0 mat 1
<215,0> <216,0> <219,0>
Face verts 3 flags 0 mat 1
<216,0> <217,0> <219,0>
Face verts 3 flags 0 mat 1
<219,0> <217,0> <220,0>
Face verts 3 flags 0 mat 1
<218,0> <219,0> <221,0>
Face verts 3 flags 0 mat 1
<221,0> <219,0> <222,0>
Face verts 3 flags 0 mat 1
<219,0> <223,0> <222,0>
Face verts 3 flags 0 mat 1
<219,0> <220,0> <223,0>
Face verts 3 flags 0 mat 1
<221,0> <210,0> <209,0>
Face verts 3 flags 0 mat 1
<221,0> <222,0> <210,0>
Face verts 3 flags 0 mat 1
<222,0> <223,0> <210,0>
Face verts 3 flags 0 mat 1
<210,0> <223,0> <211,0>
Face verts 3 flags 0 mat 0
<224,0> <226,0> <230,0>
Face verts 3 flags 0 mat 0
<226,0> <231,0> <230,0>
Face verts 3 flags 0 mat 0
<226,0> <227,0> <231,0>
Face verts 3 flags 0 mat 0
<227,0> <225,0> <231,0>
Face verts 3 flags 0 mat 0
<224,0> <230,0> <228,0>
Face verts 3 flags 0 mat 0
<228,0> <230,0> <231,0>
Face verts 3 flags 0 mat 0
<228,0> <231,0> <229,0>
Face verts 3 flags 0 mat 0
<229,0> <231,0> <225,0>
Face verts 3 flags 0 mat 0
<224,0> <230,0> <226,0>
Face verts 3 flags 0 mat 0
<226,0> <230,0> <231,0>
Face verts 3 flags 0 mat 0
<226,0> <231,0> <227,0>
Face verts 3 flags 0 mat 0
<227,0> <231,0> <225,0>
Face verts 3 flags 0 mat 0
<224,0> <228,0> <230,0>
Face verts 3 flags 0 mat 0
<228,0> <231,0> <230,0>
Face verts 3 flags 0 mat 0
<228,0> <229,0> <231,0>
Face verts 3 flags 0 mat 0
<229,0> <225,0> <231,0>
Face verts 3 flags 0 mat 0
<233,0> <235,0> <234,0>
Face verts 3 flags 0 mat 0
<234,0> <236,0> <233,0>
Face verts 3 flags 0 mat 1
<237,0> <241,0> <240,0>
Face verts 3 flags 0 mat 1
<237,0> <238,0> <241,0>
Face verts 3 flags 0 mat 1
<238,0> <239,0> <241,0>
Face verts 3 flags 0 mat 1
<241,0> <239,0> <242,0>
Face verts 3 flags 0 mat 1
<240,0> <241,0> <243,0>
Face verts 3 flags 0 mat 1
<243,0> <241,0> <244,0>
Face verts 3 flags 0 mat 1
<241,0> <245,0> <244,0>
Face verts 3 flags 0 mat 1
<241,0> <242,0> <245,0>
Face verts 3 flags 0 mat 1
<243,0> <247,0> <246,0>
Face verts 3 flags 0 mat 1
<243,0> <244,0> <247,0>
Face verts 3 flags 0 mat 1
<244,0> <245,0> <247,0>
Face verts 3 flags 0 mat 1
<247,0> <245,0> <248,0>
Face verts 3 flags 0 mat 1
<246,0> <247,0> <249,0>
Face verts 3 flags 0 mat 1
<249,0> <247,0> <250,0>
Face verts 3 flags 0 mat 1
<247,0> <251,0> <250,0>
Face verts 3 flags 0 mat 1
<247,0> <248,0> <251,0>
Face verts 3 flags 0 mat 1
<249,0> <238,0> <237,0>
Face verts 3 flags 0 mat 1
<249,0> <250,0> <238,0>
Face verts 3 flags 0 mat 1
<250,0> <251,0> <238,0>
Face verts 3 flags 0 mat 1
<238,0> <251,0> <239,0>
Face verts 3 flags 0 mat 0
<252,0> <254,0> <258,0>
Face verts 3 flags 0 mat 0
<254,0> <259,0> <258,0>
Face verts 3 flags 0 mat 0
<254,0> <255,0> <259,0>
Face verts 3 flags 0 mat 0
<255,0> <253,0> <259,0>
Face verts 3 flags 0 mat 0
<252,0> <258,0> <256,0>
Face verts 3 flags 0 mat 0
<256,0> <258,0> <259,0>
Face verts 3 flags 0 mat 0
<256,0> <259,0> <257,0>
Face verts 3 flags 0 mat 0
<257,0> <259,0> <253,0>
Face verts 3 flags 0 mat 0
<252,0> <258,0> <254,0>
Face verts 3 flags 0 mat 0
<254,0> <258,0> <259,0>
Face verts 3 flags 0 mat 0
<254,0> <259,0> <255,0>
Face verts 3 flags 0 mat 0
<255,0> <259,0> <253,0>
Face verts 3 flags 0 mat 0
<252,0> <256,0> <258,0>
Face verts 3 flags 0 mat 0
<256,0> <259,0> <258,0>
Face verts 3 flags 0 mat 0
<256,0> <257,0> <259,0>
Face verts 3 flags 0 mat 0
<257,0> <253,0> <259,0>
Face verts 3 flags 0 mat 0
<261,0> <263,0> <262,0>
Face verts 3 flags 0 mat 0
<262,0> <264,0> <261,0>
Face verts 3 flags 0 mat 1
<265,0> <269,0> <268,0>
Face verts 3 flags 0 mat 1
<265,0> <266,0> <269,0>
Face verts 3 flags 0 mat 1
<266,0> <267,0> <269,0>
Face verts 3 flags 0 mat 1
<269,0> <267,0> <270,0>
Face verts 3 flags 0 mat 1
<268,0> <269,0> <271,0>
Face verts 3 flags 0 mat 1
<271,0> <269,0> <272,0>
Face verts 3 flags 0 mat 1
<269,0> <273,0> <272,0>
Face verts 3 flags 0 mat 1
<269,0> <270,0> <273,0>
Face verts 3 flags 0 mat 1
<271,0> <275,0> <274,0>
Face verts 3 flags 0 mat 1
<271,0> <272,0> <275,0>
Face verts 3 flags 0 mat 1
<272,0> <273,0> <275,0>
Face verts 3 flags 0 mat 1
<275,0> <273,0> <276,0>
Face verts 3 flags 0 mat 1
<274,0> <275,0> <277,0>
Face verts 3 flags 0 mat 1
<277,0> <275,0> <278,0>
Face verts 3 flags 0 mat 1
<275,0> <279,0> <278,0>
Face verts 3 flags 0 mat 1
<275,0> <276,0> <279,0>
Face verts 3 flags 0 mat 1
<277,0> <266,0> <265,0>
Face verts 3 flags 0 mat 1
<277,0> <278,0> <266,0>
Face verts 3 flags 0 mat 1
<278,0> <279,0> <266,0>
Face verts 3 flags 0 mat 1
<266,0> <279,0> <267,0>
Face verts 3 flags 0 mat 0
<280,0> <282,0> <286,0>
Face verts 3 flags 0 mat 0
<282,0> <287,0> <286,0>
Face verts 3 flags 0 mat 0
<282,0> <283,0> <287,0>
Face verts 3 flags 0 mat 0
<283,0> <281,0> <287,0>
Face verts 3 flags 0 mat 0
<280,0> <286,0> <284,0>
Face verts 3 flags 0 mat 0
<284,0> <286,0> <287,0>
Face verts 3 flags 0 mat 0
<284,0> <287,0> <285,0>
Face verts 3 flags 0 mat 0
<285,0> <287,0> <281,0>
Face verts 3 flags 0 mat 0
<280,0> <286,0> <282,0>
Face verts 3 flags 0 mat 0
<282,0> <286,0> <287,0>
Face verts 3 flags 0 mat 0
<282,0> <287,0> <283,0>
Face verts 3 flags 0 mat 0
<283,0> <287,0> <281,0>
Face verts 3 flags 0 mat 0
<280,0> <284,0> <286,0>
Face verts 3 flags 0 mat 0
<284,0> <287,0> <286,0>
Face verts 3 flags 0 mat 0
<284,0> <285,0> <287,0>
Face verts 3 flags 0 mat 0
<285,0> <281,0> <287,0>
Face verts 3 flags 0 mat 0
<289,0> <291,0> <290,0>
Face verts 3 flags 0 mat 0
<290,0> <292,0> <289,0>
Face verts 3 flags 0 mat 1
<293,0> <297,0> <296,0>
Face verts 3 flags 0 mat 1
<293,0> <294,0> <297,0>
Face verts 3 flags 0 mat 1
<294,0> <295,0> <297,0>
Face verts 3 flags 0 mat 1
<297,0> <295,0> <298,0>
Face verts 3 flags 0 mat 1
<296,0> <297,0> <299,0>
Face verts 3 flags 0 mat 1
<299,0> <297,0> <300,0>
Face verts 3 flags 0 mat 1
<297,0> <301,0> <300,0>
Face verts 3 flags 0 mat 1
<297,0> <298,0> <301,0>
Face verts 3 flags 0 mat 1
<299,0> <303,0> <302,0>
Face verts 3 flags 0 mat 1
<299,0> <300,0> <303,0>
Face verts 3 flags 0 mat 1
<300,0> <301,0> <303,0>
Face verts 3 flags 0 mat 1
<303,0> <301,0> <304,0>
Face verts 3 flags 0 mat 1
<302,0> <303,0> <305,0>
Face verts 3 flags 0 mat 1
<305,0> <303,0> <306,0>
Face verts 3 flags 0 mat 1
<303,0> <307,0> <306,0>
Face verts 3 flags 0 mat 1
<303,0> <304,0> <307,0>
Face verts 3 flags 0 mat 1
<305,0> <294,0> <293,0>
Face verts 3 flags 0 mat 1
<305,0> <306,0> <294,0>
Face verts 3 flags 0 mat 1
<306,0> <307,0> <294,0>
Face verts 3 flags 0 mat 1
<294,0> <307,0> <295,0>
Face verts 3 flags 0 mat 0
<308,0> <310,0> <314,0>
Face verts 3 flags 0 mat 0
<310,0> <315,0> <314,0>
Face verts 3 flags 0 mat 0
<310,0> <311,0> <315,0>
Face verts 3 flags 0 mat 0
<311,0> <309,0> <315,0>
Face verts 3 flags 0 mat 0
<308,0> <314,0> <312,0>
Face verts 3 flags 0 mat 0
<312,0> <314,0> <315,0>
Face verts 3 flags 0 mat 0
<312,0> <315,0> <313,0>
Face verts 3 flags 0 mat 0
<313,0> <315,0> <309,0>
Face verts 3 flags 0 mat 0
<308,0> <314,0> <310,0>
Face verts 3 flags 0 mat 0
<310,0> <314,0> <315,0>
Face verts 3 flags 0 mat 0
<310,0> <315,0> <311,0>
Face verts 3 flags 0 mat 0
<311,0> <315,0> <309,0>
Face verts 3 flags 0 mat 0
<308,0> <312,0> <314,0>
Face verts 3 flags 0 mat 0
<312,0> <315,0> <314,0>
Face verts 3 flags 0 mat 0
<312,0> <313,0> <315,0>
Face verts 3 flags 0 mat 0
<313,0> <309,0> <315,0>
Face verts 3 flags 0 mat 0
<317,0> <319,0> <318,0>
Face verts 3 flags 0 mat 0
<318,0> <320,0> <317,0>
Face verts 3 flags 0 mat 1
<321,0> <325,0> <324,0>
Face verts 3 flags 0 mat 1
<321,0> <322,0> <325,0>
Face verts 3 flags 0 mat 1
<322,0> <323,0> <325,0>
Face verts 3 flags 0 mat 1
<325,0> <323,0> <326,0>
Face verts 3 flags 0 mat 1
<324,0> <325,0> <327,0>
Face verts 3 flags 0 mat 1
<327,0> <325,0> <328,0>
Face verts 3 flags 0 mat 1
<325,0> <329,0> <328,0>
Face verts 3 flags 0 mat 1
<325,0> <326,0> <329,0>
Face verts 3 flags 0 mat 1
<327,0> <331,0> <330,0>
Face verts 3 flags 0 mat 1
<327,0> <328,0> <331,0>
Face verts 3 flags 0 mat 1
<328,0> <329,0> <331,0>
Face verts 3 flags 0 mat 1
<331,0> <329,0> <332,0>
Face verts 3 flags 0 mat 1
<330,0> <331,0> <333,0>
Face verts 3 flags 0 mat 1
<333,0> <331,0> <334,0>
Face verts 3 flags 0 mat 1
<331,0> <335,0> <334,0>
Face verts 3 flags 0 mat 1
<331,0> <332,0> <335,0>
Face verts 3 flags 0 mat 1
<333,0> <322,0> <321,0>
Face verts 3 flags 0 mat 1
<333,0> <334,0> <322,0>
Face verts 3 flags 0 mat 1
<334,0> <335,0> <322,0>
Face verts 3 flags 0 mat 1
<322,0> <335,0> <323,0>
Face verts 3 flags 0 mat 0
<336,0> <338,0> <342,0>
Face verts 3 flags 0 mat 0
<338,0> <343,0> <342,0>
Face verts 3 flags 0 mat 0
<338,0> <339,0> <343,0>
Face verts 3 flags 0 mat 0
<339,0> <337,0> <343,0>
Face verts 3 flags 0 mat 0
<336,0> <342,0> <340,0>
Face verts 3 flags 0 mat 0
<340,0> <342,0> <343,0>
Face verts 3 flags 0 mat 0
<340,0> <343,0> <341,0>
Face verts 3 flags 0 mat 0
<341,0> <343,0> <337,0>
Face verts 3 flags 0 mat 0
<336,0> <342,0> <338,0>
Face verts 3 flags 0 mat 0
<338,0> <342,0> <343,0>
Face verts 3 flags 0 mat 0
<338,0> <343,0> <339,0>
Face verts 3 flags 0 mat 0
<339,0> <343,0> <337,0>
Face verts 3 flags 0 mat 0
<336,0> <340,0> <342,0>
Face verts 3 flags 0 mat 0
<340,0> <343,0> <342,0>
Face verts 3 flags 0 mat 0
<340,0> <341,0> <343,0>
Face verts 3 flags 0 mat 0
<341,0> <337,0> <343,0>
Face verts 3 flags 0 mat 0
<345,0> <347,0> <346,0>
Face verts 3 flags 0 mat 0
<346,0> <348,0> <345,0>
Face verts 3 flags 0 mat 1
<349,0> <353,0> <352,0>
Face verts 3 flags 0 mat 1
<349,0> <350,0> <353,0>
Face verts 3 flags 0 mat 1
<350,0> <351,0> <353,0>
Face verts 3 flags 0 mat 1
<353,0> <351,0> <354,0>
Face verts 3 flags 0 mat 1
<352,0> <353,0> <355,0>
Face verts 3 flags 0 mat 1
<355,0> <353,0> <356,0>
Face verts 3 flags 0 mat 1
<353,0> <357,0> <356,0>
Face verts 3 flags 0 mat 1
<353,0> <354,0> <357,0>
Face verts 3 flags 0 mat 1
<355,0> <359,0> <358,0>
Face verts 3 flags 0 mat 1
<355,0> <356,0> <359,0>
Face verts 3 flags 0 mat 1
<356,0> <357,0> <359,0>
Face verts 3 flags 0 mat 1
<359,0> <357,0> <360,0>
Face verts 3 flags 0 mat 1
<358,0> <359,0> <361,0>
Face verts 3 flags 0 mat 1
<361,0> <359,0> <362,0>
Face verts 3 flags 0 mat 1
<359,0> <363,0> <362,0>
Face verts 3 flags 0 mat 1
<359,0> <360,0> <363,0>
Face verts 3 flags 0 mat 1
<361,0> <350,0> <349,0>
Face verts 3 flags 0 mat 1
<361,0> <362,0> <350,0>
Face verts 3 flags 0 mat 1
<362,0> <363,0> <350,0>
Face verts 3 flags 0 mat 1
<350,0> <363,0> <351,0>
Face verts 3 flags 0 mat 0
<364,0> <366,0> <370,0>
Face verts 3 flags 0 mat 0
<366,0> <371,0> <370,0>
Face verts 3 flags 0 mat 0
<366,0> <367,0> <371,0>
Face verts 3 flags 0 mat 0
<367,0> <365,0> <371,0>
Face verts 3 flags 0 mat 0
<364,0> <370,0> <368,0>
Face verts 3 flags 0 mat 0
<368,0> <370,0> <371,0>
Face verts 3 flags 0 mat 0
<368,0> <371,0> <369,0>
Face verts 3 flags 0 mat 0
<369,0> <371,0> <365,0>
Face verts 3 flags 0 mat 0
<364,0> <370,0> <366,0>
Face verts 3 flags 0 mat 0
<366,0> <370,0> <371,0>
Face verts 3 flags 0 mat 0
<366,0> <371,0> <367,0>
Face verts 3 flags 0 mat 0
<367,0> <371,0> <365,0>
Face verts 3 flags 0 mat 0
<364,0> <368,0> <370,0>
Face verts 3 flags 0 mat 0
<368,0> <371,0> <370,0>
Face verts 3 flags 0 mat 0
<368,0> <369,0> <371,0>
Face verts 3 flags 0 mat 0
<369,0> <365,0> <371,0>
Face verts 3 flags 0 mat 0
<373,0> <375,0> <374,0>
Face verts 3 flags 0 mat 0
<374,0> <376,0> <373,0>
Face verts 3 flags 0 mat 1
<377,0> <381,0> <380,0>
Face verts 3 flags 0 mat 1
<377,0> <378,0> <381,0>
Face verts 3 flags 0 mat 1
<378,0> <379,0> <381,0>
Face verts 3 flags 0 mat 1
<381,0> <379,0> <382,0>
Face verts 3 flags 0 mat 1
<380,0> <381,0> <383,0>
Face verts 3 flags 0 mat 1
<383,0> <381,0> <384,0>
Face verts 3 flags 0 mat 1
<381,0> <385,0> <384,0>
Face verts 3 flags 0 mat 1
<381,0> <382,0> <385,0>
Face verts 3 flags 0 mat 1
<383,0> <387,0> <386,0>
Face verts 3 flags 0 mat 1
<383,0> <384,0> <387,0>
Face verts 3 flags 0 mat 1
<384,0> <385,0> <387,0>
Face verts 3 flags 0 mat 1
<387,0> <385,0> <388,0>
Face verts 3 flags 0 mat 1
<386,0> <387,0> <389,0>
Face verts 3 flags 0 mat 1
<389,0> <387,0> <390,0>
Face verts 3 flags 0 mat 1
<387,0> <391,0> <390,0>
Face verts 3 flags 0 mat 1
<387,0> <388,0> <391,0>
Face verts 3 flags 0 mat 1
<389,0> <378,0> <377,0>
Face verts 3 flags 0 mat 1
<389,0> <390,0> <378,0>
Face verts 3 flags 0 mat 1
<390,0> <391,0> <378,0>
Face verts 3 flags 0 mat 1
<378,0> <391,0> <379,0>
Face verts 3 flags 0 mat 0
<392,0> <394,0> <398,0>
Face verts 3 flags 0 mat 0
<394,0> <399,0> <398,0>
Face verts 3 flags 0 mat 0
<394,0> <395,0> <399,0>
Face verts 3 flags 0 mat 0
<395,0> <393,0> <399,0>
Face verts 3 flags 0 mat 0
<392,0> <398,0> <396,0>
Face verts 3 flags 0 mat 0
<396,0> <398,0> <399,0>
Face verts 3 flags 0 mat 0
<396,0> <399,0> <397,0>
Face verts 3 flags 0 mat 0
<397,0> <399,0> <393,0>
Face verts 3 flags 0 mat 0
<392,0> <398,0> <394,0>
Face verts 3 flags 0 mat 0
<394,0> <398,0> <399,0>
Face verts 3 flags 0 mat 0
<394,0> <399,0> <395,0>
Face verts 3 flags 0 mat 0
<395,0> <399,0> <393,0>
Face verts 3 flags 0 mat 0
<392,0> <396,0> <398,0>
Face verts 3 flags 0 mat 0
<396,0> <399,0> <398,0>
Face verts 3 flags 0 mat 0
<396,0> <397,0> <399,0>
Face verts 3 flags 0 mat 0
<397,0> <393,0> <399,0>
Face verts 3 flags 0 mat 0
<401,0> <403,0> <402,0>
Face verts 3 flags 0 mat 0
<402,0> <404,0> <401,0>
Face verts 3 flags 0 mat 1
<405,0> <409,0> <408,0>
Face verts 3 flags 0 mat 1
<405,0> <406,0> <409,0>
Face verts 3 flags 0 mat 1
<406,0> <407,0> <409,0>
Face verts 3 flags 0 mat 1
<409,0> <407,0> <410,0>
Face verts 3 flags 0 mat 1
<408,0> <409,0> <411,0>
Face verts 3 flags 0 mat 1
<411,0> <409,0> <412,0>
Face verts 3 flags 0 mat 1
<409,0> <413,0> <412,0>
Face verts 3 flags 0 mat 1
<409,0> <410,0> <413,0>
Face verts 3 flags 0 mat 1
<411,0> <415,0> <414,0>
Face verts 3 flags 0 mat 1
<411,0> <412,0> <415,0>
Face verts 3 flags 0 mat 1
<412,0> <413,0> <415,0>
Face verts 3 flags 0 mat 1
<415,0> <413,0> <416,0>
Face verts 3 flags 0 mat 1
<414,0> <415,0> <417,0>
Face verts 3 flags 0 mat 1
<417,0> <415,0> <418,0>
Face verts 3 flags 0 mat 1
<415,0> <419,0> <418,0>
Face verts 3 flags 0 mat 1
<415,0> <416,0> <419,0>
Face verts 3 flags 0 mat 1
<417,0> <406,0> <405,0>
Face verts 3 flags 0 mat 1
<417,0> <418,0> <406,0>
Face verts 3 flags 0 mat 1
<418,0> <419,0> <406,0>
Face verts 3 flags 0 mat 1
<406,0> <419,0> <407,0>
mat# 0
rgb 0.9382,0.8912,0.8088
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "matte"
mat# 1
rgb 1,0.8284,0.4833
alpha 1 ka 0.1 ks 0.1 exp 0
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "constant"
