stage/hdprman1.parm {
picture	[ 0	locks=0 ]	(	"$HIP/l/$OS_$LOPLEAK.$F4.exr"	)
set -g LOPLEAK = 'leak'
}
stage/lopnet/out/hdprman2.parm {
picture	[ 0	locks=0 ]	(	"$HIP/l2/x.$F4.exr"	)
}
img/comp/hdprman3.parm {
Picture	[ 0 ]	(	"$HIP/l3/x.$F.exr"	)
}
obj/lopnet1/hdprman4.parm {
picture	[ 0	locks=0 ]	(	"$HIP/l4/a.exr"	)
picture	[ 0	locks=0 ]	(	"`chs("x")`"	)

# picture	(	"/x.exr"	)
}
stage/karma/hdprman5.parm {
picture	[ 0	locks=0 ]	(	"$HIP/l5/x.$F4.exr"	)
}
stage/rendersettings1.parm {
camera	[ 0	locks=0 ]	(	"/cameras/cam1"	)
xn__redshiftglobalRS_archive_enable	[ 0	locks=0 ]	(	"on"	)
xn__redshiftglobalRS_archive_fileName	[ 0	locks=0 ]	(	"$HIP/rs/$OS.$F4.rs"	)
set -g RSLEAK = 'leak'
}
out/u1.parm {
outputimage	[ 0	locks=0 ]	(	""	)
loppath	[ 0	locks=0 ]	(	"/stage/hdprman1"	)
}
out/u2.parm {
outputimage	[ 0	locks=0 ]	(	""	)
loppath	[ 0	locks=0 ]	(	"/out/hdprman2"	)
}
out/u3.parm {
outputimage	[ 0	locks=0 ]	(	""	)
loppath	[ 0	locks=0 ]	(	"/img/comp/hdprman3"	)
}
out/u4.parm {
outputimage	[ 0	locks=0 ]	(	""	)
loppath	[ 0	locks=0 ]	(	"/obj/lopnet1/hdprman4"	)
}
out/u5.parm {
outputimage	[ 0	locks=0 ]	(	""	)
loppath	[ 0	locks=0 ]	(	"/stage/karma/hdprman5"	)
}
out/u6.parm {
outputimage	[ 0	locks=0 ]	(	""	)
loppath	[ 0	locks=0 ]	(	"/STAGE/hdprman1"	)
}
out/h1.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/u/$OS.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	arnold_vs_karma	)
}
out/h2.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/u/$OS.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	vray_hdprman	)
}
out/h3.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/u/$OS.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	VRay_settings	)
}
out/h4.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/u/$OS.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	RedShift1	)
}
out/h5.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/u/$OS.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	ARNOLD1	)
}
out/h6.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/u/$OS.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	prman1	)
}
out/h_two.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/u/$OS_$RSLEAK.$F4.exr"	)
renderer	[ 0	locks=0 ]	(	karma_x	)
renderer	[ 0	locks=0 ]	(	storm	)
}
out/karma_arnold.parm {
picture	[ 0	locks=0 ]	(	"$HIP/u/$OS.$F4.exr"	)
}
stage/rendersettings2.parm {
camera	[ 0	locks=0 ]	(	"/cameras/cam2"	)
