Name tile
center 0 0 0
x axis 1 0 0
y axis 0 1 0
z axis 0 0 1
Transform
1 0 0 0
0 1 0 0
0 0 1 0
0 0 0 1
World Vertices 4
0 0 0
1 0 0
1 1 0
0 1 0.5
Texture Vertices 4
0 0
1 0
1 1
0 1
Faces 3
Face verts 3 flags 0 mat 1
<0,0> <1,1> <2,2>
Face verts 3 flags 0 mat 0
<0,0> <2,2> <3,3>
Face verts 3 flags 0 mat 2
<3,3> <2,2> <1,1>
mat# 1
rgb 0.2,0.4,0.6
alpha 1 ka 0.5 ks 0.25 exp 3
Shader class: color
Shader name: "texture map"
file name: string "x/broken.bmp"
Shader class: transparency
Shader name: "filter"
colour: color (128, 64, 255)
Shader class: reflectance
Shader name: "plastic"
mat# 0
rgb 0.2,0.4,0.6
alpha 1 ka 0.5 ks 0.25 exp 3
Shader class: color
Shader name: "texture map"
file name: string ".\wall.bmp"
Shader class: transparency
Shader name: "glass"
Shader class: reflectance
Shader name: "phong"
mat# 2
rgb 0.2,0.4,0.6
alpha 1 ka 0.5 ks 0.25 exp 3
Shader class: color
Shader name: "plain color"
Shader class: transparency
Shader name: "none"
Shader class: reflectance
Shader name: "constant"
END
